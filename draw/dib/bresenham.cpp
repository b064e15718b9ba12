#include "draw/dib/bresenham.h"

#include <cstddef>

namespace tavix {

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
