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
    CoverageLevels levels;
  };

  // The character whose cell has its top left corner at `origin` of a white picture, drawn in black
  // and `advance` pixels from the next one. None where a pixel has a high byte, or lies at the
  // picture's edge, which may have cut others off.
  static std::optional<Glyph> FromPicture(const PixelBlock& over_white, ScreenPoint origin,
                                          int advance);

  [[nodiscard]] int Advance() const { return advance_; }
  [[nodiscard]] const std::vector<Pixel>& Pixels() const { return pixels_; }

  // Whether a pixel lies outside of the cell's columns, as with smoothing in colours most do.
  [[nodiscard]] bool LeavesCell() const { return box_.left < 0 || box_.right > advance_; }

  // Whether a pixel of `next`, the character after this one, falls on one of this.
  [[nodiscard]] bool LiesUnder(const Glyph& next) const;

  // Bytes of memory beside the object itself.
  [[nodiscard]] std::size_t Bytes() const { return pixels_.capacity() * sizeof(Pixel); }

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

  // Bytes of memory beside the object itself.
  [[nodiscard]] std::size_t Bytes() const { return fours_.capacity() * sizeof(Four); }

 private:
  static constexpr int kPixels = 4;
  static constexpr std::size_t kChannels = 4;  // the fourth byte of a pixel is unused and stays
  static constexpr std::size_t kBytes = std::size_t{kPixels} * kChannels;

  struct Four {
    std::int16_t x;
    std::int16_t y;
    std::array<std::uint16_t, kBytes> weights;
  };

  // The pixel's weights of red, green and blue.
  using Weights = std::array<std::uint16_t, 3>;

  void Add(const Glyph::Pixel& pixel, const Weights& weights);

  PixelBox box_;
  std::vector<Four> fours_;
};

}  // namespace tavix
