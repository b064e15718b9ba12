// The line that stands for a segment on the screen.
#pragma once

#include <limits>

#include "view/coordinates.h"

namespace tavix {

// What to draw so that a segment with two ends on one pixel still leaves a dot: a line leaves its
// own end out. At the right end of the range of pixels, far out of view, there is no dot.
inline ScreenSegment WithDot(ScreenSegment segment) {
  constexpr int kLast = std::numeric_limits<int>::max();
  if (segment.start == segment.end && segment.end.x < kLast) ++segment.end.x;
  return segment;
}

}  // namespace tavix
