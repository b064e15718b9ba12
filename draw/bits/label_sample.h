// The system's smoothed text, read back from its own drawing.
#pragma once

#include <optional>

#include "draw/bits/glyph.h"
#include "draw/bits/smooth_blend.h"
#include "draw/bits/system_sample.h"
#include "draw/plain_canvas.h"
#include "store/name_pool.h"

namespace tavix {

// A picture with room for labels of up to `length` characters of a font of `height` pixels, drawn
// in `color`.
class LabelSample {
 public:
  LabelSample(int height, int length, std::uint32_t color = 0);

  // False when there was no memory; nothing else may be called then.
  [[nodiscard]] bool IsMade() const { return sample_.IsMade(); }

  // A character as the system draws it; none where it is not to be had, see Glyph.
  [[nodiscard]] std::optional<Glyph> ReadGlyph(char16_t character);

  // Teaches `blend` those levels of the character's glyph that it does not know.
  void LearnLevels(char16_t character, const Glyph& glyph, SmoothBlend& blend);

  // Whether the system's label is what `draw(block, at)` draws: with its top left corner at `at`,
  // over any picture, and cut by its edges.
  template <class Draw>
  [[nodiscard]] bool IsSystemsLabel(NameView text, Draw draw) {
    for (const ScreenPoint& at :
         {inside_, ScreenPoint{-3, -3}, ScreenPoint{right_ - 5, inside_.y}}) {
      sample_.FillUnevenly();
      const OwnSample own(sample_);
      draw(own.Pixels(), at);
      plain_.Label(at, text);
      if (!own.Equals(sample_)) return false;
    }
    return true;
  }

 private:
  int widest_;          // what a character may take of the row, in pixels
  ScreenPoint inside_;  // far enough from the edges
  int right_;
  SystemSample sample_;
  PlainCanvas plain_;
};

}  // namespace tavix
