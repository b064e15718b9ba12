// Circular arcs as polylines.
#pragma once

#include <optional>
#include <vector>

#include "view/coordinates.h"

namespace tavix {

// Points of a curve in order; the first and the last are the given ends exactly.
using Polyline = std::vector<GroundPoint>;

// The centre from which `p` lies at distance |r1| and `q` at distance |r2|, on the right of the way
// from p to q. Circles that only touch meet on the line from p to q. No centre when the points
// coincide or lie too far apart.
[[nodiscard]] std::optional<GroundPoint> TwoCircleCentre(GroundPoint p, double r1, GroundPoint q,
                                                         double r2);

// The shorter arc of radius |r| metres from `start` to `end`, clockwise, with a point every 5
// degrees. A negative radius runs it from `end` to `start` instead. Empty when there is no such
// arc.
[[nodiscard]] Polyline BuildArc(GroundPoint start, GroundPoint end, double r);

}  // namespace tavix
