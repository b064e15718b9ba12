// Moving the sheet: the next tap is its bottom left corner.
#pragma once

#include "host/tools/plan_tool.h"
#include "host/tools/sheet_frame.h"

namespace fieldhost {

class MoveSheetTool : public PlanTool {
 public:
  // The frame must outlive the tool.
  explicit MoveSheetTool(SheetFrame& frame) : frame_(frame) {}

  Progress Begin() override;
  Progress PositionTapped(const GroundPosition& position) override;
  Progress Finish(Ending ending) override;

 private:
  void AskForPlace();

  SheetFrame& frame_;
};

}  // namespace fieldhost
