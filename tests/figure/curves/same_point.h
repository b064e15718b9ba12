// Points that are the same to the last bit.
#pragma once

#include <ostream>

#include "view/coordinates.h"

namespace tavix {

inline bool operator==(const GroundPoint& a, const GroundPoint& b) {
  return a.north == b.north && a.east == b.east;
}

inline std::ostream& operator<<(std::ostream& out, const GroundPoint& point) {
  return out << '(' << point.north << ", " << point.east << ')';
}

}  // namespace tavix
