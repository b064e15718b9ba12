// Room for the system's labels, and for comparing ours with them.
#pragma once

#include <cstdint>

#include "draw/gdi_canvas.h"
#include "platform/wide_text.h"
#include "store/name_pool.h"

namespace tavix {

// A picture with room for labels of up to `length` characters of a font of `height` pixels, drawn
// in `color`. `Sample` is a picture that the system draws in, `Own` a copy of one.
template <class Sample, class Own>
class LabelRoom {
 public:
  LabelRoom(int height, int length, std::uint32_t color)
      : widest_(height * 2),
        inside_{height, height},
        right_(height * 2 + widest_ * length),
        sample_(right_, height * 3),
        plain_(sample_.Dc()) {
    PointSymbol symbol;
    symbol.label_height = height;
    plain_.UsePointSymbol(symbol);
    plain_.UseTextColor(color);
  }

  // False when there was no memory; nothing else may be called then.
  [[nodiscard]] bool IsMade() const { return sample_.IsMade(); }

  // Whether the system's label is what `draw(pixels, at)` draws: with its top left corner at `at`,
  // over any picture, and cut by its edges.
  template <class Draw>
  [[nodiscard]] bool IsSystemsLabel(NameView text, Draw draw) {
    for (const ScreenPoint& at :
         {inside_, ScreenPoint{-3, -3}, ScreenPoint{right_ - 5, inside_.y}}) {
      sample_.FillUnevenly();
      const Own own(sample_);
      draw(own.Pixels(), at);
      plain_.Label(at, text);
      if (!own.Equals(sample_)) return false;
    }
    return true;
  }

 protected:
  // The pixels from a character to the next one; -1 where they are too many for the room.
  [[nodiscard]] int AdvanceOf(char16_t character) {
    const int advance = sample_.Dc().GetTextExtent(AsWide(&character), 1).cx;
    return advance > widest_ ? -1 : advance;
  }

  // Far enough from the edges for one character.
  [[nodiscard]] ScreenPoint Inside() const { return inside_; }

  // Draws a character there and returns the picture.
  [[nodiscard]] const auto& Drawn(char16_t character) {
    plain_.Label(inside_, {&character, 1});
    return sample_.Pixels();
  }

  [[nodiscard]] Sample& Paper() { return sample_; }

 private:
  int widest_;  // what a character may take of the row, in pixels
  ScreenPoint inside_;
  int right_;
  Sample sample_;
  GdiCanvas plain_;
};

}  // namespace tavix
