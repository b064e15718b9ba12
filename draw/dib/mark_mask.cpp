#include "draw/dib/mark_mask.h"

#include <algorithm>
#include <cstddef>

namespace tavix {

std::optional<MarkMask> MarkMask::FromPictures(const PixelBlock& over_white,
                                               const PixelBlock& over_black, ScreenPoint origin) {
  MarkMask mask;
  for (int y = 0; y < over_white.height; ++y) {
    for (int x = 0; x < over_white.width; ++x) {
      const std::uint32_t on_white = *over_white.At(x, y);
      const std::uint32_t on_black = *over_black.At(x, y);
      if (on_white == kWhitePaper && on_black == kBlackPaper) continue;
      if (on_white != on_black) return std::nullopt;
      if (mask.runs_.empty()) mask.color_ = on_white;
      if (on_white != mask.color_) return std::nullopt;
      mask.Add(x - origin.x, y - origin.y);
    }
  }
  int longest = 0;
  for (const Run& run : mask.runs_) longest = std::max(longest, run.count);
  mask.longest_.assign(static_cast<std::size_t>(longest), mask.color_);
  return mask;
}

void MarkMask::Add(int x, int y) {
  if (runs_.empty()) box_ = {x, y, x, y};
  box_ = {std::min(box_.left, x), std::min(box_.top, y), std::max(box_.right, x + 1),
          std::max(box_.bottom, y + 1)};
  if (!runs_.empty() && runs_.back().y == y && runs_.back().x + runs_.back().count == x) {
    ++runs_.back().count;
  } else {
    runs_.push_back({x, y, 1});
  }
}

// A long run is copied: the library's copy moves many pixels at once, a loop one after the other.
void MarkMask::Paint(std::uint32_t* pixels, int count) const {
  constexpr int kShort = 16;
  if (count <= kShort) {
    std::fill_n(pixels, count, color_);
  } else {
    std::copy_n(longest_.data(), count, pixels);
  }
}

void MarkMask::Draw(const PixelBlock& block, ScreenPoint at) const {
  if (!box_.Fits(block, at.x, at.y)) {
    DrawCut(block, at);
    return;
  }
  for (const Run& run : runs_) {
    Paint(block.At(at.x + run.x, at.y + run.y), run.count);
  }
}

void MarkMask::DrawCut(const PixelBlock& block, ScreenPoint at) const {
  for (const Run& run : runs_) {
    const int y = at.y + run.y;
    if (y < 0 || y >= block.height) continue;
    const int left = std::max(at.x + run.x, 0);
    const int right = std::min(at.x + run.x + run.count, block.width);
    if (left < right) Paint(block.At(left, y), right - left);
  }
}

}  // namespace tavix
