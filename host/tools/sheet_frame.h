// The sheet's frame over the plan, and the tool that moves it.
#pragma once

#include <afxwin.h>

#include <optional>

#include "host/tools/plan_tool.h"
#include "host/tools/sheet.h"

namespace fieldhost {

// The library lays a frame out for the plot window's size at that moment and keeps it with that
// window: call Keep before the size or the window changes, LayOut after it.
class SheetFrame {
 public:
  // Lays the sheet on the plan and gives the view its scale. The sheet's middle stays where it is,
  // unless its origin was placed: then that stays.
  void Show(const Sheet& sheet);
  void Remove();

  // The sheet as the view shows it now: zooming changes its scale. Nothing while there is none.
  [[nodiscard]] std::optional<Sheet> Now() const;
  // Paper, scale and the ground at the bottom left corner; empty while there is no sheet.
  [[nodiscard]] CString Text() const;

  // Puts the sheet's bottom left corner on a place.
  void MoveTo(const GroundPosition& origin);

  void Keep();
  void LayOut();

 private:
  [[nodiscard]] static GroundPosition Origin();
  static void PutOriginOn(const GroundPosition& place);
  void TurnOn() const;
  void SetScale(int scale);

  std::optional<Sheet> sheet_;  // with the scale that was set last
  GivenScale given_scale_;
  GroundPosition kept_origin_;
  bool placed_ = false;
};

// The next tap is the place of the sheet's bottom left corner.
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
