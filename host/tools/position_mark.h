// A mark over the plan where the user is at work.
#pragma once

#include "host/survey/ground_position.h"

namespace fieldhost {

// The plot window has one such mark, so only one object shows at a time. Showing needs a plot
// window.
class PositionMark {
 public:
  explicit PositionMark(short legend) : legend_(legend) {}

  void Show(const GroundPosition& at);
  // With a line from an anchor.
  void Show(const GroundPosition& at, const GroundPosition& anchor);
  void Hide();

 private:
  short legend_;
};

}  // namespace fieldhost
