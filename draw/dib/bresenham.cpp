#include "draw/dib/bresenham.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>

namespace tavix {

int TieRule::OctantOf(int dx, int dy) {
  return (dx < 0 ? 1 : 0) | (dy < 0 ? 2 : 0) | (std::abs(dx) > std::abs(dy) ? 4 : 0);
}

LineWalk::LineWalk(const TieRule& rule, const ScreenSegment& segment) {
  const int dx = segment.end.x - segment.start.x;
  const int dy = segment.end.y - segment.start.y;
  is_flat_ = std::abs(dx) > std::abs(dy);
  step_x_ = dx < 0 ? -1 : 1;
  step_y_ = dy < 0 ? -1 : 1;
  length_ = std::max(std::abs(dx), std::abs(dy));
  const int shorter = std::min(std::abs(dx), std::abs(dy));
  // A tie is an error of zero; where the line steps later it counts as not yet passed.
  const bool at_once = rule.StepsAtOnce(TieRule::OctantOf(dx, dy));
  error_ = 2 * shorter - length_ - (at_once ? 0 : 1);
  on_straight_ = 2 * shorter;
  on_aside_ = 2 * (shorter - length_);
}

void StepLine(const PixelBlock& block, const TieRule& rule, const ScreenSegment& segment,
              std::uint32_t color) {
  const auto [start, end] = segment;
  if (block.Holds(start.x, start.y) && block.Holds(end.x, end.y)) {
    LineWalk walk(rule, segment);
    const std::ptrdiff_t down = static_cast<std::ptrdiff_t>(walk.StepY()) * block.width;
    const std::ptrdiff_t along = walk.IsFlat() ? walk.StepX() : down;
    const std::ptrdiff_t aside = walk.IsFlat() ? down : walk.StepX();
    std::uint32_t* pixel = block.At(start.x, start.y);
    for (int i = 0; i < walk.Pixels(); ++i) {
      *pixel = color;
      pixel += along + (walk.StepsAside() ? aside : 0);
    }
    return;
  }
  ForEachPixel(rule, segment, [&](int x, int y) {
    if (block.Holds(x, y)) *block.At(x, y) = color;
  });
}

}  // namespace tavix
