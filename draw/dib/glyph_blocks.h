// A glyph in blocks of four pixels, for speed.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "draw/dib/glyph.h"
#include "draw/dib/pixel_block.h"
#include "draw/dib/smooth_blend.h"

namespace tavix {

// Draws what Glyph draws where every level of it leaves a fixed share. Four pixels side by side are
// worked on at once: the compiler turns the plain loop over their sixteen bytes into a few wide
// instructions. Of the pixels in a block that are not the glyph's the whole share is left.
class GlyphBlocks {
 public:
  // None where a level has no share.
  static std::optional<GlyphBlocks> From(const Glyph& glyph, const SmoothBlend& blend);

  // Whether all blocks lie inside when the cell's corner is at `at`; otherwise nothing may be drawn
  // there.
  [[nodiscard]] bool Fits(const PixelBlock& block, ScreenPoint at) const {
    return box_.Fits(block, at.x, at.y);
  }

  void Draw(const PixelBlock& block, ScreenPoint at) const;

 private:
  static constexpr int kPixels = 4;
  static constexpr std::size_t kChannels = 4;  // the fourth byte of a pixel shows nothing and stays
  static constexpr std::size_t kBytes = std::size_t{kPixels} * kChannels;

  struct Four {
    std::int16_t x;
    std::int16_t y;
    std::array<std::uint16_t, kBytes> shares;
  };

  void Add(const Glyph::Pixel& pixel, std::uint16_t share);

  PixelBox box_;
  std::vector<Four> fours_;
};

}  // namespace tavix
