#include "draw/dib/glyph_blocks.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace tavix {

std::optional<GlyphBlocks> GlyphBlocks::From(const Glyph& glyph, const SmoothBlend& blend) {
  GlyphBlocks blocks;
  for (const Glyph::Pixel& pixel : glyph.Pixels()) {
    const std::optional<std::uint16_t> share = blend.Share(pixel.level);
    if (!share) return std::nullopt;
    blocks.Add(pixel, *share);
  }
  return blocks;
}

// The pixels come row by row, from the left.
void GlyphBlocks::Add(const Glyph::Pixel& pixel, std::uint16_t share) {
  if (fours_.empty() || fours_.back().y != pixel.y || pixel.x >= fours_.back().x + kPixels) {
    if (fours_.empty()) box_ = {pixel.x, pixel.y, pixel.x, pixel.y};
    fours_.push_back({pixel.x, pixel.y, {}});
    fours_.back().shares.fill(kWholeShare);
    box_ = {std::min<int>(box_.left, pixel.x), std::min<int>(box_.top, pixel.y),
            std::max(box_.right, pixel.x + kPixels), std::max(box_.bottom, pixel.y + 1)};
  }
  Four& four = fours_.back();
  const auto first = static_cast<std::size_t>(pixel.x - four.x) * kChannels;
  for (std::size_t channel = 0; channel < 3; ++channel) four.shares[first + channel] = share;
}

void GlyphBlocks::Draw(const PixelBlock& block, ScreenPoint at) const {
  std::uint32_t* const corner = block.At(at.x, at.y);
  const std::ptrdiff_t width = block.width;
  for (const Four& four : fours_) {
    std::uint32_t* const shown = corner + (four.y * width + four.x);
    std::array<std::uint8_t, kBytes> bytes;
    std::memcpy(bytes.data(), shown, kBytes);
    for (std::size_t i = 0; i < kBytes; ++i) {
      bytes[i] = LeftByShare(bytes[i], four.shares[i]);
    }
    std::memcpy(shown, bytes.data(), kBytes);
  }
}

}  // namespace tavix
