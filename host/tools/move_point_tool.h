// Moves a point: pick it, tap its new position, confirm.
#pragma once

#include <optional>

#include "host/plot/plot_pane.h"
#include "host/plot/side_pane.h"
#include "host/tools/plan_tool.h"
#include "host/tools/position_mark.h"

namespace fieldhost {

class MovePointTool : public PlanTool {
 public:
  // The panes must outlive the tool: the point is moved in both.
  MovePointTool(PlotPane& plot, SidePane& side, short mark_legend)
      : plot_(plot), side_(side), mark_(mark_legend) {}

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

  PlotPane& plot_;
  SidePane& side_;
  PositionMark mark_;
  std::optional<Picked> point_;
  std::optional<GroundPosition> place_;  // while there is a point
};

}  // namespace fieldhost
