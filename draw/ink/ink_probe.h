// Point marks and labels in ink, read back from GDI's drawing.
#pragma once

#include <optional>

#include "draw/dib/glyph_cache.h"
#include "draw/dib/verification.h"
#include "draw/ink/ink_mask.h"
#include "draw/ink/one_bit_bitmap.h"
#include "store/symbols.h"

namespace tavix {

// A mark as GDI draws it on a one-bit picture.
struct InkMark {
  // None where the mark is too large to be worth it, has another colour than black or white, or is
  // not the same everywhere.
  static std::optional<InkMark> Probe(const PointSymbol& symbol);

  void Draw(const InkBlock& block, ScreenPoint at) const { mask.Draw(block, at, is_black); }

  InkMask mask;
  bool is_black;
};

// Reads back characters of one font. Unlike an antialiased one a character may reach beyond its
// cell: ink over ink is ink.
class InkLabelReference : public LabelReference<OneBitReference, OneBitTrial> {
 public:
  InkLabelReference(int height, int length) : LabelReference(height, length, 0) {}

  struct Glyph {
    InkMask mask;
    int advance;  // pixels to the next character
  };

  // A character as GDI draws it; none where it is too wide.
  [[nodiscard]] std::optional<Glyph> ReadGlyph(char16_t character) {
    const int advance = AdvanceOf(character);
    if (advance < 0) return std::nullopt;
    Paper().FillWhite();
    return Glyph{InkMask::FromPicture(Drawn(character), Inside()), advance};
  }
};

// Draws the characters of one font into a one-bit picture.
class InkFont {
 public:
  using Block = InkBlock;
  using Reference = InkLabelReference;
  using Glyph = InkLabelReference::Glyph;
  static constexpr int kHighest = kLargestDrawn;

  explicit InkFont(int height) : height_(height) {}

  [[nodiscard]] int Height() const { return height_; }
  [[nodiscard]] Reference MakeReference(int length) const { return {height_, length}; }
  [[nodiscard]] static std::optional<Glyph> Read(Reference& reference, char16_t character) {
    return reference.ReadGlyph(character);
  }
  static void Draw(const Block& block, ScreenPoint at, const Glyph& glyph) {
    glyph.mask.Draw(block, at, true);
  }
  [[nodiscard]] static int Advance(const Glyph& glyph) { return glyph.advance; }

 private:
  int height_;
};

using InkLabels = GlyphCache<InkFont>;

}  // namespace tavix
