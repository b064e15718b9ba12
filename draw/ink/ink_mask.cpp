#include "draw/ink/ink_mask.h"

#include <algorithm>

namespace tavix {

void StepLine(const InkBlock& block, const TieRule& rule, const ScreenSegment& segment,
              std::uint32_t value) {
  ForEachPixel(rule, segment, [&](int x, int y) {
    if (block.Holds(x, y)) block.Fill(x, y, 1, value != 0);
  });
}

InkMask InkMask::FromPicture(const InkBlock& picture, ScreenPoint origin) {
  InkMask mask;
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      if (!picture.IsInk(x, y)) continue;
      const int first = x;
      while (x < picture.width && picture.IsInk(x, y)) ++x;
      mask.runs_.push_back({first - origin.x, y - origin.y, x - first});
    }
  }
  return mask;
}

void InkMask::Draw(const InkBlock& block, ScreenPoint at, bool ink) const {
  for (const Run& run : runs_) {
    const int y = at.y + run.y;
    if (y < 0 || y >= block.height) continue;
    const int left = std::max(at.x + run.x, 0);
    const int right = std::min(at.x + run.x + run.count, block.width);
    if (left < right) block.Fill(left, y, right - left, ink);
  }
}

}  // namespace tavix
