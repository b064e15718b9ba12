// The pieces of a line pattern, and those of a walk that passes nothing over.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <stdexcept>
#include <vector>

#include "draw/line_styles.h"

namespace tavix {

using Pieces = std::vector<LinePiece>;

// The walk under test.
inline Pieces Walk(const CViewState& view, const LinePattern& pattern, GroundPoint start,
                   GroundPoint end, const ScreenBox& visible) {
  Pieces pieces;
  WalkPattern(view, pattern, start, end, visible,
              [&](const LinePiece& piece) { pieces.push_back(piece); });
  return pieces;
}

inline bool SamePoint(GroundPoint a, GroundPoint b) {
  return a.north == b.north && a.east == b.east;
}
inline bool SamePiece(const LinePiece& a, const LinePiece& b) {
  return SamePoint(a.start, b.start) && SamePoint(a.end, b.end);
}

// The walk as the rules have it, one addition after the other. A pattern too fine for its
// coordinates has no end: std::length_error.
inline Pieces FullWalk(const CViewState& view, const LinePattern& pattern, GroundPoint start,
                       GroundPoint end) {
  const double length = std::hypot(end.north - start.north, end.east - start.east);
  const RealScreenPoint from = view.GroundToRealScreen(start);
  const RealScreenPoint to = view.GroundToRealScreen(end);
  const double pixels_per_metre = std::hypot(to.x - from.x, to.y - from.y) / length;
  const auto inside = [&](GroundPoint at) {
    return std::min(start.north, end.north) <= at.north &&
           at.north <= std::max(start.north, end.north) &&
           std::min(start.east, end.east) <= at.east && at.east <= std::max(start.east, end.east);
  };
  const auto step = [&](GroundPoint at, std::size_t i) {
    const double metres = std::abs(pattern.lengths[i % pattern.count]) / pixels_per_metre;
    return GroundPoint{at.north + (end.north - start.north) / length * metres,
                       at.east + (end.east - start.east) / length * metres};
  };
  constexpr std::size_t kMost = 5000000;
  Pieces pieces;
  GroundPoint p = start;
  GroundPoint q = step(p, 0);
  for (std::size_t i = 0; inside(q); i += 2) {
    pieces.push_back({p, q});
    if (pieces.size() > kMost) throw std::length_error("a walk without end");
    p = step(q, i + 1);
    if (!inside(p)) return pieces;
    q = step(p, i + 2);
  }
  pieces.push_back({p, end});
  return pieces;
}

// Whether any of a piece lies in the box.
inline bool Touches(const CViewState& view, const LinePiece& piece, const ScreenBox& box) {
  const RealScreenPoint a = view.GroundToRealScreen(piece.start);
  const RealScreenPoint b = view.GroundToRealScreen(piece.end);
  double enter = 0.0;
  double leave = 1.0;
  const auto cut = [&](double from, double way, double low, double high) {
    if (way == 0.0) {
      if (from < low || from > high) leave = -1.0;
      return;
    }
    enter = std::max(enter, std::min((low - from) / way, (high - from) / way));
    leave = std::min(leave, std::max((low - from) / way, (high - from) / way));
  };
  cut(a.x, b.x - a.x, box.left, box.right);
  cut(a.y, b.y - a.y, box.top, box.bottom);
  return enter <= leave;
}

}  // namespace tavix
