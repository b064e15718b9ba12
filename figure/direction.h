// Directions and distances on the ground.
#pragma once

#include "view/coordinates.h"

namespace tavix {

// The one tolerance of all curve geometry: lengths in metres below it are zero.
constexpr double kGeometryZero = 1e-7;

// The angle of (dx, dy) in radians from the x axis toward the y axis, in [0, 2 pi). A vector
// without an x part points along y, and (0, 0) counts as pointing against it: 3 pi / 2.
[[nodiscard]] double Direction(double dx, double dy);

// The way from one point to another.
struct Inverse {
  double distance = 0.0;   // metres
  double direction = 0.0;  // radians, [0, 2 pi); 0 when the points coincide
};
[[nodiscard]] Inverse InverseOf(GroundPoint from, GroundPoint to);

}  // namespace tavix
