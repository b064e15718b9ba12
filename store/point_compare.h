// When a changed value counts as a change.
#pragma once

#include <cmath>

#include "view/coordinates.h"

namespace tavix {

// Coordinates closer than this, in metres, are the same.
constexpr double kSameCoordinate = 1e-5;

inline bool IsSamePlace(GroundPoint a, GroundPoint b) {
  return std::fabs(a.north - b.north) < kSameCoordinate &&
         std::fabs(a.east - b.east) < kSameCoordinate;
}

}  // namespace tavix
