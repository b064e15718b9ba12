// Circular arcs as polylines.
#pragma once

#include <optional>
#include <vector>

#include "view/coordinates.h"

namespace tavix {

// Points of a curve in order; the first and the last are the given ends exactly.
using Polyline = std::vector<GroundPoint>;

// The centre from which `p` lies at distance |r1| and `q` at distance |r2|, on the side reached by
// turning the direction from p to q by +90 degrees (from x toward y). Circles that only touch count
// as meeting on the line from p to q. None when the points coincide or lie too far apart.
[[nodiscard]] std::optional<GroundPoint> TwoCircleCentre(GroundPoint p, double r1, GroundPoint q,
                                                         double r2);

// The shorter arc of radius |r| metres from `start` to `end` with a point every 5 degrees, running
// with increasing angle (from x toward y). A negative radius runs it from `end` to `start` instead.
// Empty when there is no such arc.
[[nodiscard]] Polyline BuildArc(GroundPoint start, GroundPoint end, double r);

}  // namespace tavix
