// Labels drawn in ink.
#pragma once

#include <optional>

#include "draw/dib/label_alphabet.h"
#include "draw/dib/label_room.h"
#include "draw/ink/ink_sample.h"
#include "draw/ink/ink_shape.h"
#include "store/symbols.h"

namespace tavix {

// The system's text in ink, read back from its own drawing. Unlike smoothed text it may reach
// beyond its cell: ink over ink is ink.
class InkLabelSample : public LabelRoom<InkSample, OwnInkSample> {
 public:
  InkLabelSample(int height, int length) : LabelRoom(height, length, 0) {}

  struct Glyph {
    InkShape shape;
    int advance;  // pixels to the next character
  };

  // A character as the system draws it; none where it is too wide.
  [[nodiscard]] std::optional<Glyph> ReadGlyph(char16_t character) {
    const int advance = AdvanceOf(character);
    if (advance < 0) return std::nullopt;
    Paper().FillWhite();
    return Glyph{InkShape::FromPicture(Drawn(character), Inside()), advance};
  }
};

// Draws the characters of one font into a one-bit picture.
class InkHand {
 public:
  using Block = InkBlock;
  using Sample = InkLabelSample;
  using Glyph = InkLabelSample::Glyph;
  static constexpr int kHighest = kLargestDrawn;

  explicit InkHand(int height) : height_(height) {}

  [[nodiscard]] int Height() const { return height_; }
  [[nodiscard]] Sample MakeSample(int length) const { return {height_, length}; }
  [[nodiscard]] static std::optional<Glyph> Read(Sample& sample, char16_t character) {
    return sample.ReadGlyph(character);
  }
  static void Draw(const Block& block, ScreenPoint at, const Glyph& glyph) {
    glyph.shape.Draw(block, at, true);
  }
  [[nodiscard]] static int Advance(const Glyph& glyph) { return glyph.advance; }

 private:
  int height_;
};

using InkLabels = LabelAlphabet<InkHand>;

}  // namespace tavix
