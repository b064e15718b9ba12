// One character of a font, to be drawn many times.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "draw/dib/pixel_block.h"
#include "draw/dib/smooth_blend.h"
#include "view/coordinates.h"

namespace tavix {

class Glyph {
 public:
  // A pixel of the character, relative to the top left corner of its cell.
  struct Pixel {
    std::int16_t x;
    std::int16_t y;
    std::uint8_t level;  // see SmoothBlend
  };

  // The character whose cell has its top left corner at `origin` of a white picture, `advance`
  // pixels from the next one. None where it is coloured, or where its ink leaves the columns of its
  // cell and may come to lie under its neighbour's.
  static std::optional<Glyph> FromPicture(const PixelBlock& over_white, ScreenPoint origin,
                                          int advance);

  [[nodiscard]] int Advance() const { return advance_; }
  [[nodiscard]] const std::vector<Pixel>& Pixels() const { return pixels_; }

  // Draws the character with its cell's corner at `at`, cut at the block's edges. Every level of it
  // is known to `blend`.
  void Draw(const PixelBlock& block, const SmoothBlend& blend, ScreenPoint at) const;

 private:
  void Add(Pixel pixel);
  void DrawCut(const PixelBlock& block, const SmoothBlend& blend, ScreenPoint at) const;

  int advance_ = 0;
  PixelBox box_;
  std::vector<Pixel> pixels_;
};

}  // namespace tavix
