// Azimuths and distances on the ground.
#pragma once

#include "view/coordinates.h"

namespace tavix {

// The one tolerance of all curve geometry: lengths in metres below it are zero.
constexpr double kGeometryZero = 1e-7;

// The azimuth of a ground vector in metres: radians clockwise from north, in [0, 2 pi).
// Compatibility: a vector without a north part points east, or west where its east part is not
// positive, so that (0, 0) points west: 3 pi / 2.
[[nodiscard]] double Azimuth(double north, double east);

// Distance and azimuth from one point to another: what surveyors call the inverse computation.
struct Inverse {
  double distance = 0.0;  // metres
  double azimuth = 0.0;   // radians, [0, 2 pi); 0 when the points coincide
};
[[nodiscard]] Inverse InverseOf(GroundPoint from, GroundPoint to);

}  // namespace tavix
