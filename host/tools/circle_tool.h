// Drawing circles: the centre, then a point on the circle, then the next circle.
#pragma once

#include <optional>

#include "host/survey/survey_document.h"
#include "host/tools/plan_tool.h"
#include "host/tools/position_mark.h"

namespace fieldhost {

class CircleTool : public PlanTool {
 public:
  // The document must outlive the tool.
  CircleTool(SurveyDocument& document, short mark_legend)
      : document_(document), mark_(mark_legend) {}

  Progress Begin() override;
  void End() override;
  void Restore() override;
  Progress PositionTapped(const GroundPosition& position) override;
  // Takes the centre back, else the circle drawn last.
  void Undo() override;
  Progress Finish(Ending ending) override;

 private:
  void TakeCentre(const GroundPosition& centre);
  void Draw(double radius);

  SurveyDocument& document_;
  PositionMark mark_;
  std::optional<GroundPosition> centre_;
};

}  // namespace fieldhost
