// Moving a point: the point, its new place, and then a word that it is meant so.
#pragma once

#include <optional>

#include "host/plot_pane.h"
#include "host/tools/plan_tool.h"
#include "host/tools/position_mark.h"

namespace fieldhost {

class MovePointTool : public PlanTool {
 public:
  explicit MovePointTool(short mark_legend) : mark_(mark_legend) {}

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

  PositionMark mark_;
  std::optional<Picked> point_;
  std::optional<GroundPosition> place_;  // while there is a point
};

}  // namespace fieldhost
