#include "host/tools/move_sheet_tool.h"

namespace fieldhost {

Progress MoveSheetTool::Begin() {
  if (!frame_.Now()) {
    Say(L"There is no sheet to move: choose its paper and scale first.");
    return Progress::kDone;
  }
  AskForPlace();
  return Progress::kGoesOn;
}

void MoveSheetTool::AskForPlace() { Say(L"Sheet: tap the place of its bottom left corner."); }

Progress MoveSheetTool::PositionTapped(const GroundPosition& position) {
  frame_.MoveTo(position);
  Say(frame_.Text());
  return Progress::kDone;
}

// Nothing is moved before the tap.
Progress MoveSheetTool::Finish(Ending) {
  AskForPlace();
  return Progress::kGoesOn;
}

}  // namespace fieldhost
