#include "host/tools/position_mark.h"

#include <tavix/tavix.h>

namespace fieldhost {

// A start takes off what was shown before.
void PositionMark::Show(const GroundPosition& at) {
  Tavix_MvPntStt(legend_);
  Tavix_MvPntMov(at.north, at.east);
}

void PositionMark::Show(const GroundPosition& at, const GroundPosition& anchor) {
  Tavix_MvPntStt(legend_);
  Tavix_MvPntRub(anchor.north, anchor.east);
  Tavix_MvPntMov(at.north, at.east);
}

void PositionMark::Hide() { Tavix_MvPntEnd(); }

}  // namespace fieldhost
