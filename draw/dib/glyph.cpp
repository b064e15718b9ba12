#include "draw/dib/glyph.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace tavix {

std::optional<Glyph> Glyph::FromPicture(const PixelBlock& over_white, ScreenPoint origin,
                                        int advance) {
  constexpr std::uint32_t kWhite = 0x00FFFFFF;
  Glyph glyph;
  glyph.advance_ = advance;
  for (int y = 0; y < over_white.height; ++y) {
    for (int x = 0; x < over_white.width; ++x) {
      const std::uint32_t pixel = *over_white.At(x, y);
      if (pixel == kWhite) continue;
      if (pixel > kWhite || over_white.IsEdge(x, y)) return std::nullopt;
      glyph.Add({static_cast<std::int16_t>(x - origin.x), static_cast<std::int16_t>(y - origin.y),
                 LevelsOf(pixel)});
    }
  }
  glyph.pixels_.shrink_to_fit();
  return glyph;
}

bool Glyph::LiesUnder(const Glyph& next) const {
  if (box_.right <= advance_ + next.box_.left) return false;
  return std::any_of(pixels_.begin(), pixels_.end(), [&](const Pixel& pixel) {
    return std::any_of(next.pixels_.begin(), next.pixels_.end(), [&](const Pixel& over) {
      return over.y == pixel.y && over.x + advance_ == pixel.x;
    });
  });
}

void Glyph::Add(Pixel pixel) {
  const int x = pixel.x;
  const int y = pixel.y;
  if (pixels_.empty()) box_ = {x, y, x, y};
  box_ = {std::min(box_.left, x), std::min(box_.top, y), std::max(box_.right, x + 1),
          std::max(box_.bottom, y + 1)};
  pixels_.push_back(pixel);
}

void Glyph::Draw(const PixelBlock& block, const BlendTable& blend, ScreenPoint at) const {
  if (!box_.Fits(block, at.x, at.y)) {
    DrawCut(block, blend, at);
    return;
  }
  std::uint32_t* const corner = block.At(at.x, at.y);
  const std::ptrdiff_t width = block.width;
  const BlendRow* const rows = blend.Rows();
  for (const Pixel& pixel : pixels_) {
    std::uint32_t* const shown = corner + (pixel.y * width + pixel.x);
    *shown = Blended(rows, pixel.levels, *shown);
  }
}

void Glyph::DrawCut(const PixelBlock& block, const BlendTable& blend, ScreenPoint at) const {
  for (const Pixel& pixel : pixels_) {
    const int x = at.x + pixel.x;
    const int y = at.y + pixel.y;
    if (!block.Holds(x, y)) continue;
    std::uint32_t* const shown = block.At(x, y);
    *shown = Blended(blend.Rows(), pixel.levels, *shown);
  }
}

std::optional<GlyphBlocks> GlyphBlocks::From(const Glyph& glyph, const BlendTable& blend) {
  GlyphBlocks blocks;
  for (const Glyph::Pixel& pixel : glyph.Pixels()) {
    Weights weights;
    for (std::size_t channel = 0; channel < weights.size(); ++channel) {
      const std::optional<std::uint16_t> weight = blend.Weight(pixel.levels[channel]);
      if (!weight) return std::nullopt;
      weights[channel] = *weight;
    }
    blocks.Add(pixel, weights);
  }
  blocks.fours_.shrink_to_fit();
  return blocks;
}

// The pixels come row by row, from the left.
void GlyphBlocks::Add(const Glyph::Pixel& pixel, const Weights& weights) {
  if (fours_.empty() || fours_.back().y != pixel.y || pixel.x >= fours_.back().x + kPixels) {
    if (fours_.empty()) box_ = {pixel.x, pixel.y, pixel.x, pixel.y};
    fours_.push_back({pixel.x, pixel.y, {}});
    fours_.back().weights.fill(kFullWeight);
    box_ = {std::min<int>(box_.left, pixel.x), std::min<int>(box_.top, pixel.y),
            std::max(box_.right, pixel.x + kPixels), std::max(box_.bottom, pixel.y + 1)};
  }
  Four& four = fours_.back();
  const auto first = static_cast<std::size_t>(pixel.x - four.x) * kChannels;
  // The bytes of a pixel begin with blue.
  std::reverse_copy(weights.begin(), weights.end(),
                    four.weights.begin() + static_cast<std::ptrdiff_t>(first));
}

void GlyphBlocks::Draw(const PixelBlock& block, ScreenPoint at) const {
  std::uint32_t* const corner = block.At(at.x, at.y);
  const std::ptrdiff_t width = block.width;
  for (const Four& four : fours_) {
    std::uint32_t* const shown = corner + (four.y * width + four.x);
    std::array<std::uint8_t, kBytes> bytes;
    std::memcpy(bytes.data(), shown, kBytes);
    for (std::size_t i = 0; i < kBytes; ++i) {
      bytes[i] = Weighted(bytes[i], four.weights[i]);
    }
    std::memcpy(shown, bytes.data(), kBytes);
  }
}

}  // namespace tavix
