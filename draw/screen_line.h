// The line that stands for a segment on the screen.
#pragma once

#include "view/coordinates.h"

namespace tavix {

// What to draw so that a segment with two ends on one pixel still leaves a dot: a line leaves its
// own end out.
inline ScreenSegment WithDot(ScreenSegment segment) {
  if (segment.start == segment.end) ++segment.end.x;
  return segment;
}

}  // namespace tavix
