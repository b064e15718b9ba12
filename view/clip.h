// Clipping of whole-pixel segments to the client rectangle.
#pragma once

#include <array>

#include "view/coordinates.h"

namespace tavix {

// The corners of the client rectangle in the order (0,0), (w,0), (w,h), (0,h).
using ScreenQuad = std::array<ScreenPoint, 4>;

// True when the point lies in the rectangle, borders included: 0 <= x <= w and 0 <= y <= h.
inline bool PointInQuad(const ScreenQuad& quad, ScreenPoint point) {
  return point.x >= quad[0].x && point.x <= quad[1].x && point.y >= quad[0].y &&
         point.y <= quad[2].y;
}

// Clips `segment` in place to the rectangle; false when no part of it is inside.
//
// Compatibility: when two borders are crossed the order of the ends follows the order of the
// borders (top, right, bottom, left) and not the given direction; a segment whose only crossing is
// the end that lies inside is refused. Borders that are crossed in one and the same pixel, at a
// corner, count once; more than two different crossings are refused.
bool ClipToQuad(const ScreenQuad& quad, ScreenSegment& segment);

// The crossing of border `edge` and `segment`, ends included; false when they do not meet.
bool IntersectSegments(const ScreenSegment& edge, const ScreenSegment& segment,
                       ScreenPoint& crossing);

}  // namespace tavix
