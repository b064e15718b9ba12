// Labels of antialiased text, drawn from glyphs read back from GDI.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "draw/dib/blend_table.h"
#include "draw/dib/glyph.h"
#include "draw/dib/glyph_cache.h"
#include "draw/dib/reference_bitmap.h"
#include "draw/dib/verification.h"

namespace tavix {

// Reads back characters of one font and colour.
class SmoothReference : public LabelReference<ReferenceBitmap, TrialBitmap> {
 public:
  SmoothReference(int height, int length, std::uint32_t color = 0)
      : LabelReference(height, length, color), color_(color) {}

  // A character as GDI draws it in black; none where it cannot be a glyph, see Glyph.
  [[nodiscard]] std::optional<Glyph> ReadGlyph(const Letter& letter);

  // Sets the rows of `blend` for those levels of the character's glyph that it does not know, and
  // returns the levels.
  std::vector<std::uint8_t> ReadLevels(const Letter& letter, const Glyph& glyph, BlendTable& blend);

 private:
  std::uint32_t color_;
};

// Draws the characters of one font and colour into pixels.
class SmoothFont {
 public:
  using Block = PixelBlock;
  using Reference = SmoothReference;
  // In pixels: a higher font has more levels to read back than there are labels to draw.
  static constexpr int kHighest = 40;

  // The blocks are the faster way, where there are any.
  struct Glyph {
    tavix::Glyph glyph;
    std::optional<GlyphBlocks> blocks;

    [[nodiscard]] int Advance() const { return glyph.Advance(); }
    [[nodiscard]] bool LeavesCell() const { return glyph.LeavesCell(); }
    [[nodiscard]] bool LiesUnder(const Glyph& next) const { return glyph.LiesUnder(next.glyph); }
    [[nodiscard]] std::size_t Bytes() const {
      return glyph.Bytes() + (blocks ? blocks->Bytes() : 0);
    }
  };

  // A font of `height` pixels. `blend` is that of the colour, is shared with other fonts and
  // outlives this.
  SmoothFont(int height, std::uint32_t color, BlendTable& blend)
      : height_(height), color_(color), blend_(&blend) {}

  [[nodiscard]] int Height() const { return height_; }
  [[nodiscard]] Reference MakeReference(int length) const { return {height_, length, color_}; }
  [[nodiscard]] std::optional<Glyph> Read(Reference& reference, const Letter& letter) const;
  void Draw(const Block& block, ScreenPoint at, const Glyph& glyph) const;

 private:
  int height_;
  std::uint32_t color_;
  BlendTable* blend_;
};

using SmoothLabels = GlyphCache<SmoothFont>;

}  // namespace tavix
