// A place on the ground, in plan.
#pragma once

#include <cmath>

namespace fieldhost {

struct GroundPosition {
  double north = 0.0;  // metres
  double east = 0.0;

  friend bool operator==(const GroundPosition&, const GroundPosition&) = default;
};

// In metres.
[[nodiscard]] inline double Distance(const GroundPosition& from, const GroundPosition& to) {
  return std::hypot(to.north - from.north, to.east - from.east);
}

}  // namespace fieldhost
