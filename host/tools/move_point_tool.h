// Moves a point: pick it, tap its new position, confirm.
#pragma once

#include <optional>

#include "host/survey/survey_document.h"
#include "host/tools/plan_tool.h"
#include "host/tools/position_mark.h"

namespace fieldhost {

class MovePointTool : public PlanTool {
 public:
  // The document must outlive the tool.
  MovePointTool(SurveyDocument& document, short mark_legend)
      : document_(document), mark_(mark_legend) {}

  Progress Begin() override;
  void End() override;
  void Restore() override;
  [[nodiscard]] Taps Wants() const override;
  Progress PointPicked(int key) override;
  // The new place; a further tap gives another one.
  Progress PositionTapped(const GroundPosition& position) override;
  // Takes the new place back, else the point.
  void Undo() override;
  // Stores the new place.
  Progress Finish(Ending ending) override;

 private:
  struct Picked {
    int key;
    CString label;
    GroundPosition position;
  };

  void Show() { Restore(); }
  void AskForPoint();
  void AskForPlace();

  SurveyDocument& document_;
  PositionMark mark_;
  std::optional<Picked> point_;
  std::optional<GroundPosition> place_;  // while there is a point
};

}  // namespace fieldhost
