// Tracing a boundary corner by corner, until it is drawn as a figure.
#pragma once

#include <vector>

#include "host/tools/drawn_figures.h"
#include "host/tools/plan_tool.h"
#include "host/tools/position_mark.h"

namespace fieldhost {

class TraceTool : public PlanTool {
 public:
  // The figures must outlive the tool.
  TraceTool(DrawnFigures& figures, short mark_legend) : figures_(figures), mark_(mark_legend) {}

  Progress Begin() override;
  void End() override;
  void Restore() override;
  // Adds a corner. The place of the last corner, tapped again, adds none.
  Progress PositionTapped(const GroundPosition& position) override;
  // Takes the last corner back.
  void Undo() override;
  // Two corners make a line, three a closed boundary.
  Progress Finish(Ending ending) override;

 private:
  void MarkLastCorner();

  DrawnFigures& figures_;
  PositionMark mark_;
  std::vector<GroundPosition> corners_;
};

}  // namespace fieldhost
