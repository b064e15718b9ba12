// A mark over the plan where the user is at work.
#pragma once

#include <tavix/tavix.h>

#include "host/survey/ground_geometry.h"

namespace fieldhost {

// The plot window has one such mark, so only one object shows at a time. Showing needs a plot
// window, and takes off what was shown before.
class PositionMark {
 public:
  explicit PositionMark(short legend) : legend_(legend) {}

  void Show(const GroundPosition& at) {
    Tavix_MvPntStt(legend_);
    Tavix_MvPntMov(at.north, at.east);
  }
  // With a line from an anchor.
  void Show(const GroundPosition& at, const GroundPosition& anchor) {
    Tavix_MvPntStt(legend_);
    Tavix_MvPntRub(anchor.north, anchor.east);
    Tavix_MvPntMov(at.north, at.east);
  }
  void Hide() { Tavix_MvPntEnd(); }

 private:
  short legend_;
};

}  // namespace fieldhost
