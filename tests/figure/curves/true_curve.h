// The true curves, computed in another way than by the library: by integration along the
// curve, and by measuring distances.
#pragma once

#include <vector>

#include "view/coordinates.h"

namespace tavix::test {

// A clothoid's point at tangent angle `tau` (radians) for parameter `a`, by Simpson's rule.
[[nodiscard]] GroundPoint IntegratedClothoid(double tau, double a);

// The clothoid between two radii (0 is straight; the sign is the side) laid from `start` so that
// its chord points at `end`, as a chain of 4000 short chords.
[[nodiscard]] std::vector<GroundPoint> TrueClothoid(GroundPoint start, GroundPoint end, double r1,
                                                    double a, double r2);

// How far `point` lies from the nearest piece of `chain`.
[[nodiscard]] double DistanceTo(const std::vector<GroundPoint>& chain, GroundPoint point);

}  // namespace tavix::test
