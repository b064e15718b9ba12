// Labels drawn from smoothed glyphs.
#pragma once

#include <cstdint>
#include <optional>

#include "draw/dib/glyph.h"
#include "draw/dib/glyph_blocks.h"
#include "draw/dib/label_alphabet.h"
#include "draw/dib/label_sample.h"
#include "draw/dib/smooth_blend.h"

namespace tavix {

// Draws the characters of one font and colour into pixels.
class SmoothHand {
 public:
  using Block = PixelBlock;
  using Sample = LabelSample;
  static constexpr int kHighest = 40;  // above, there are more levels to learn than labels to draw

  // The blocks are the faster way, where there are any.
  struct Glyph {
    tavix::Glyph glyph;
    std::optional<GlyphBlocks> blocks;
  };

  // A font of `height` pixels. `blend` is that of the colour, is shared with other fonts and
  // outlives this.
  SmoothHand(int height, std::uint32_t color, SmoothBlend& blend)
      : height_(height), color_(color), blend_(&blend) {}

  [[nodiscard]] int Height() const { return height_; }
  [[nodiscard]] Sample MakeSample(int length) const { return {height_, length, color_}; }
  [[nodiscard]] std::optional<Glyph> Read(Sample& sample, char16_t character) const;
  void Draw(const Block& block, ScreenPoint at, const Glyph& glyph) const;
  [[nodiscard]] static int Advance(const Glyph& glyph) { return glyph.glyph.Advance(); }

 private:
  int height_;
  std::uint32_t color_;
  SmoothBlend* blend_;
};

using LabelGlyphs = LabelAlphabet<SmoothHand>;

}  // namespace tavix
