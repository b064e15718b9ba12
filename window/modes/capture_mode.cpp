#include "window/modes/capture_mode.h"

#include "store/point_list.h"

namespace tavix {

void CaptureMode::Start(int command) {
  command_ = command;
  on_ = true;
  captured_.reset();
}

void CaptureMode::End() {
  on_ = false;
  captured_.reset();
}

void CaptureMode::Tapped(GroundPoint tapped, std::optional<std::int32_t> key) {
  GroundPoint coordinate = tapped;
  if (key && target_.points.Find(*key) == 0) target_.points.GetCurCrd(&coordinate);
  captured_ = coordinate;
  Report(static_cast<UINT>(command_), 0);
}

}  // namespace tavix
