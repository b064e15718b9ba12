#include "host/tools/capture_tool.h"

#include "host/app/measure_text.h"

namespace fieldhost {

Progress CaptureTool::Begin() {
  Say(L"Tap a place to capture its coordinates.");
  return Progress::kGoesOn;
}

Progress CaptureTool::PositionTapped(const GroundPosition& position) {
  Say(L"Captured  " + PositionText(position));
  return Progress::kGoesOn;
}

}  // namespace fieldhost
