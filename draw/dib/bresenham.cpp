#include "draw/dib/bresenham.h"

#include <cstddef>
#include <cstdlib>

namespace tavix {
namespace {

// A walk along the longer axis. `error` is the distance from the true course in units of twice the
// longer side; above zero the course has come nearer to the next row or column.
struct Walk {
  int length;  // pixels
  int error;
  int on_straight;  // added by a step along the longer axis,
  int on_aside;     // by one along both
};

Walk WalkOf(int longer, int shorter, bool at_once) {
  // A tie is an error of zero; where the line steps later it counts as not yet passed.
  return {longer, 2 * shorter - longer - (at_once ? 0 : 1), 2 * shorter, 2 * (shorter - longer)};
}

}  // namespace

int TieRule::OctantOf(int dx, int dy) {
  return (dx < 0 ? 1 : 0) | (dy < 0 ? 2 : 0) | (std::abs(dx) > std::abs(dy) ? 4 : 0);
}

void StepLine(const PixelBlock& block, const TieRule& rule, const ScreenSegment& segment,
              std::uint32_t color) {
  const auto [start, end] = segment;
  const int dx = end.x - start.x;
  const int dy = end.y - start.y;
  const bool flat = std::abs(dx) > std::abs(dy);
  const Walk walk = WalkOf(std::abs(flat ? dx : dy), std::abs(flat ? dy : dx),
                           rule.StepsAtOnce(TieRule::OctantOf(dx, dy)));
  const int step_x = dx < 0 ? -1 : 1;
  const int step_y = dy < 0 ? -1 : 1;
  int error = walk.error;
  if (block.Holds(start.x, start.y) && block.Holds(end.x, end.y)) {
    const std::ptrdiff_t down = static_cast<std::ptrdiff_t>(step_y) * block.width;
    const std::ptrdiff_t along = flat ? step_x : down;
    const std::ptrdiff_t aside = flat ? down : step_x;
    std::uint32_t* pixel = block.At(start.x, start.y);
    for (int i = 0; i < walk.length; ++i) {
      *pixel = color;
      const bool steps_aside = error >= 0;
      pixel += along + (steps_aside ? aside : 0);
      error += steps_aside ? walk.on_aside : walk.on_straight;
    }
    return;
  }
  int x = start.x;
  int y = start.y;
  for (int i = 0; i < walk.length; ++i) {
    if (block.Holds(x, y)) *block.At(x, y) = color;
    const bool steps_aside = error >= 0;
    if (flat || steps_aside) x += step_x;
    if (!flat || steps_aside) y += step_y;
    error += steps_aside ? walk.on_aside : walk.on_straight;
  }
}

}  // namespace tavix
