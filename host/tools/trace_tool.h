// Tracing a boundary vertex by vertex, until it is drawn as a figure.
#pragma once

#include <vector>

#include "host/survey/survey_document.h"
#include "host/tools/plan_tool.h"
#include "host/tools/position_mark.h"

namespace fieldhost {

class TraceTool : public PlanTool {
 public:
  // The document must outlive the tool.
  TraceTool(SurveyDocument& document, short mark_legend)
      : document_(document), mark_(mark_legend) {}

  Progress Begin() override;
  void End() override;
  void Restore() override;
  // Adds a vertex, unless the position is that of the last one.
  Progress PositionTapped(const GroundPosition& position) override;
  // Takes the last vertex back.
  void Undo() override;
  // Two vertices make a line, three a closed boundary.
  Progress Finish(Ending ending) override;

 private:
  void MarkLastVertex();

  SurveyDocument& document_;
  PositionMark mark_;
  std::vector<GroundPosition> vertices_;
};

}  // namespace fieldhost
