#include "draw/dib/glyph.h"

#include <algorithm>

namespace tavix {

std::optional<Glyph> Glyph::FromPicture(const PixelBlock& over_white, ScreenPoint origin,
                                        int advance) {
  constexpr std::uint32_t kWhite = 0x00FFFFFF;
  constexpr std::uint32_t kGreyOne = 0x00010101;
  Glyph glyph;
  glyph.advance_ = advance;
  for (int y = 0; y < over_white.height; ++y) {
    for (int x = 0; x < over_white.width; ++x) {
      const std::uint32_t pixel = *over_white.At(x, y);
      if (pixel == kWhite) continue;
      const auto level = static_cast<std::uint8_t>(pixel);
      if (pixel != level * kGreyOne) return std::nullopt;
      if (x < origin.x || x >= origin.x + advance) return std::nullopt;
      glyph.Add({static_cast<std::int16_t>(x - origin.x), static_cast<std::int16_t>(y - origin.y),
                 level});
    }
  }
  return glyph;
}

void Glyph::Add(Pixel pixel) {
  const int x = pixel.x;
  const int y = pixel.y;
  if (pixels_.empty()) box_ = {x, y, x, y};
  box_ = {std::min(box_.left, x), std::min(box_.top, y), std::max(box_.right, x + 1),
          std::max(box_.bottom, y + 1)};
  pixels_.push_back(pixel);
}

void Glyph::Draw(const PixelBlock& block, const SmoothBlend& blend, ScreenPoint at) const {
  if (!box_.Fits(block, at.x, at.y)) {
    DrawCut(block, blend, at);
    return;
  }
  std::uint32_t* const corner = block.At(at.x, at.y);
  const std::ptrdiff_t width = block.width;
  const BlendRamp* const ramps = blend.Ramps();
  for (const Pixel& pixel : pixels_) {
    std::uint32_t* const shown = corner + (pixel.y * width + pixel.x);
    *shown = Blended(ramps[pixel.level], *shown);
  }
}

void Glyph::DrawCut(const PixelBlock& block, const SmoothBlend& blend, ScreenPoint at) const {
  for (const Pixel& pixel : pixels_) {
    const int x = at.x + pixel.x;
    const int y = at.y + pixel.y;
    if (!block.Holds(x, y)) continue;
    std::uint32_t* const shown = block.At(x, y);
    *shown = Blended(blend.Ramps()[pixel.level], *shown);
  }
}

}  // namespace tavix
