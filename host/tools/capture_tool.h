// Capturing coordinates: each tap tells where it was.
#pragma once

#include "host/tools/plan_tool.h"

namespace fieldhost {

class CaptureTool : public PlanTool {
 public:
  Progress Begin() override;
  Progress PositionTapped(const GroundPosition& position) override;
};

}  // namespace fieldhost
