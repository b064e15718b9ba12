// Clothoids (transition curves) as polylines.
#pragma once

#include "figure/curves/arc.h"
#include "view/coordinates.h"

namespace tavix {

// A clothoid's local coordinates in metres at tangent angle `tau` (radians, 0 or more) for
// parameter `a`: its straight end is the origin, where it runs north and bends east. Good to a
// millimetre below about one radian.
[[nodiscard]] GroundPoint ClothoidPoint(double tau, double a);

// The clothoid of parameter `a` from `start` with radius `r1` to `end` with radius `r2`, with a
// point every degree of its tangent; a radius of 0 is a straight end, a negative one bends the
// other way. A clothoid that ends straight is built from `end` to `start`. The ends are trusted:
// `end` is given as it is, even where the parameters do not quite reach it.
//
// Compatibility: between two radii the second must be the smaller; otherwise only the two ends
// result. Far out, where the series of ClothoidPoint leaves the true curve, the points still follow
// the series.
//
// Empty when a number is not finite, or when the curve bends so far that it would have more than
// ten million points.
[[nodiscard]] Polyline BuildClothoid(GroundPoint start, GroundPoint end, double r1, double a,
                                     double r2);

}  // namespace tavix
