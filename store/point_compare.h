// When a changed value counts as a change.
#pragma once

#include <cmath>

#include "view/coordinates.h"

namespace tavix {

// Coordinates closer than this, in metres, are the same.
constexpr double kSameCoordinate = 1e-5;

inline bool IsSamePlace(GroundPoint a, GroundPoint b) {
  return std::fabs(a.x - b.x) < kSameCoordinate && std::fabs(a.y - b.y) < kSameCoordinate;
}

}  // namespace tavix
