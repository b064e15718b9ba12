// The ground around a view or a tap, to leave out what lies elsewhere.
#pragma once

#include <algorithm>

#include "view/coordinates.h"
#include "view/extent.h"

namespace tavix {

// The ground up to `north` and `east` metres from a point, borders included.
struct GroundArea {
  GroundPoint centre;
  double north = 0.0;
  double east = 0.0;

  // Whether a box reaches into the area; true for a box when it is for a point in it. Rounded or
  // not, a difference falls as the coordinate rises: those at the borders of a box bound the
  // others. What cannot be compared is taken for touching.
  [[nodiscard]] bool Touches(const GroundExtent& box) const {
    return !IsBeyond(centre.north, box.min.north, box.max.north, north) &&
           !IsBeyond(centre.east, box.min.east, box.max.east, east);
  }
  [[nodiscard]] bool Touches(GroundPoint point) const {
    return Touches(GroundExtent{point, point});
  }

 private:
  // One branch, mostly predicted.
  [[nodiscard]] static bool IsBeyond(double middle, double low, double high, double reach) {
    return std::max(low - middle, middle - high) > reach;
  }
};

}  // namespace tavix
