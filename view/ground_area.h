// The ground around a view or a tap, to leave out what lies elsewhere.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

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
  // Whether a point lies within it, short of its borders. One that is not finite never does.
  [[nodiscard]] bool Holds(GroundPoint point) const {
    return std::fabs(point.north - centre.north) < north &&
           std::fabs(point.east - centre.east) < east;
  }

 private:
  // One branch, mostly predicted.
  [[nodiscard]] static bool IsBeyond(double middle, double low, double high, double reach) {
    return std::max(low - middle, middle - high) > reach;
  }
};

// Holds back what is out of a view for certain: of the segments whose pixels are as far apart as
// their ends on the ground, those outside of the view. Pixels far away are not: they are cut to the
// range of their numbers.
struct SegmentSieve {
  GroundArea view;   // outside of it, on one side, nothing shows
  GroundArea exact;  // within it pixels are true

  // All segments between points in the box.
  [[nodiscard]] bool HoldsBack(const GroundExtent& box) const {
    return !view.Touches(box) && exact.Holds(box.min) && exact.Holds(box.max);
  }
  // All segments between these points, of which there is at least one.
  [[nodiscard]] bool HoldsBack(std::span<const GroundPoint> points) const {
    if (view.Touches(points.front())) return false;
    GroundExtent box{points.front(), points.front()};
    for (const GroundPoint point : points) {
      if (!exact.Holds(point)) return false;
      box = {{std::max(box.max.north, point.north), std::max(box.max.east, point.east)},
             {std::min(box.min.north, point.north), std::min(box.min.east, point.east)}};
    }
    return !view.Touches(box);
  }
  [[nodiscard]] bool HoldsBack(GroundPoint start, GroundPoint end) const {
    return HoldsBack(std::array{start, end});
  }
};

}  // namespace tavix
