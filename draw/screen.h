// Rectangles and lines of the screen.
#pragma once

#include <limits>

#include "view/coordinates.h"

namespace tavix {

// In pixels, borders included.
struct ScreenBox {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};

// Makes of a segment the line to draw for it, so that one with both ends on the same pixel still
// leaves a dot: a line leaves its own end out. At the right end of the range of pixels, far out of
// view, there is no dot.
inline void AddDot(ScreenSegment& segment) {
  constexpr int kLast = std::numeric_limits<int>::max();
  if (segment.start == segment.end && segment.end.x < kLast) ++segment.end.x;
}

}  // namespace tavix
