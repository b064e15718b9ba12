// Points that are the same to the last bit.
#pragma once

#include <ostream>

#include "view/coordinates.h"

namespace tavix {

inline bool operator==(const GroundPoint& a, const GroundPoint& b) {
  return a.x == b.x && a.y == b.y;
}

inline std::ostream& operator<<(std::ostream& out, const GroundPoint& point) {
  return out << '(' << point.x << ", " << point.y << ')';
}

}  // namespace tavix
