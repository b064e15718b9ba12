// Point marks and labels in ink, read back from GDI's drawing.
#pragma once

#include <cstddef>
#include <optional>

#include "draw/dib/bresenham.h"
#include "draw/dib/glyph_cache.h"
#include "draw/dib/verification.h"
#include "draw/ink/ink_mask.h"
#include "draw/ink/one_bit_bitmap.h"
#include "store/symbols.h"

namespace tavix {

// How GDI breaks the ties of lines on one-bit pictures; none where it does not step solid lines of
// one pixel by the rule of the others.
[[nodiscard]] std::optional<TieRule> ProbeInkTieRule();

// A mark as GDI draws it on a one-bit picture.
struct InkMark {
  // None where the mark is too large to be worth it, has another colour than black or white, or is
  // not the same everywhere.
  static std::optional<InkMark> Probe(const PointSymbol& symbol);

  void Draw(const InkBlock& block, ScreenPoint at) const { mask.Draw(block, at, is_black); }

  InkMask mask;
  bool is_black;
};

// Reads back characters of one font. It does not matter where characters lie over each other:
// ink over ink is ink.
class InkLabelReference : public LabelReference<OneBitReference, OneBitTrial> {
 public:
  InkLabelReference(int height, int length) : LabelReference(height, length, 0) {}

  struct Glyph {
    InkMask mask;
    int advance;  // pixels to the next character

    [[nodiscard]] int Advance() const { return advance; }
    [[nodiscard]] static bool LeavesCell() { return false; }
    [[nodiscard]] static bool LiesUnder(const Glyph&) { return false; }
    [[nodiscard]] std::size_t Bytes() const { return mask.Bytes(); }
  };

  // A character as GDI draws it; none where it is too wide.
  [[nodiscard]] std::optional<Glyph> ReadGlyph(const Letter& letter) {
    const int advance = AdvanceOf(letter);
    if (advance < 0) return std::nullopt;
    Paper().FillWhite();
    return Glyph{InkMask::FromPicture(Drawn(letter), Inside()), advance};
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
  [[nodiscard]] static std::optional<Glyph> Read(Reference& reference, const Letter& letter) {
    return reference.ReadGlyph(letter);
  }
  static void Draw(const Block& block, ScreenPoint at, const Glyph& glyph) {
    glyph.mask.Draw(block, at, true);
  }

 private:
  int height_;
};

using InkLabels = GlyphCache<InkFont>;

}  // namespace tavix
