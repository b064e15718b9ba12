// One character of an antialiased font, drawn many times.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "draw/dib/blend_table.h"
#include "draw/dib/dib_section.h"
#include "view/coordinates.h"

namespace tavix {

class Glyph {
 public:
  // A pixel of the character, relative to the top left corner of its cell.
  struct Pixel {
    std::int16_t x;
    std::int16_t y;
    std::uint8_t level;  // of coverage, see BlendTable
  };

  // The character whose cell has its top left corner at `origin` of a white picture, `advance`
  // pixels from the next one. None where it is coloured, or where it leaves the columns of its cell
  // and may lie under its neighbour.
  static std::optional<Glyph> FromPicture(const PixelBlock& over_white, ScreenPoint origin,
                                          int advance);

  [[nodiscard]] int Advance() const { return advance_; }
  [[nodiscard]] const std::vector<Pixel>& Pixels() const { return pixels_; }

  // Draws the character with its cell's corner at `at`, cut at the block's edges. Every level of it
  // is known to `blend`.
  void Draw(const PixelBlock& block, const BlendTable& blend, ScreenPoint at) const;

 private:
  void Add(Pixel pixel);
  void DrawCut(const PixelBlock& block, const BlendTable& blend, ScreenPoint at) const;

  int advance_ = 0;
  PixelBox box_;
  std::vector<Pixel> pixels_;
};

// Draws what a glyph draws in blocks of four pixels, for speed, where every level of it has a fixed
// weight. Four pixels side by side are blended at once: the compiler turns the plain loop over
// their sixteen bytes into a few vector instructions. Pixels of a block that are not the glyph's
// have full weight.
class GlyphBlocks {
 public:
  // None where a level has no weight.
  static std::optional<GlyphBlocks> From(const Glyph& glyph, const BlendTable& blend);

  // Whether all blocks lie inside when the cell's corner is at `at`; otherwise nothing may be drawn
  // there.
  [[nodiscard]] bool Fits(const PixelBlock& block, ScreenPoint at) const {
    return box_.Fits(block, at.x, at.y);
  }

  void Draw(const PixelBlock& block, ScreenPoint at) const;

 private:
  static constexpr int kPixels = 4;
  static constexpr std::size_t kChannels = 4;  // the fourth byte of a pixel is unused and stays
  static constexpr std::size_t kBytes = std::size_t{kPixels} * kChannels;

  struct Four {
    std::int16_t x;
    std::int16_t y;
    std::array<std::uint16_t, kBytes> weights;
  };

  void Add(const Glyph::Pixel& pixel, std::uint16_t weight);

  PixelBox box_;
  std::vector<Four> fours_;
};

}  // namespace tavix
