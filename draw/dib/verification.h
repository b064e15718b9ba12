// Whether our marks and labels are GDI's, pixel for pixel.
//
// The templates serve every kind of bitmap: `Reference` is one that GDI draws in, `Trial` a copy of
// it that our code draws in, such as ReferenceBitmap and TrialBitmap.
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>

#include "draw/dib/label_letters.h"
#include "draw/gdi_canvas.h"
#include "platform/wide_text.h"
#include "store/name_pool.h"
#include "store/symbols.h"

namespace tavix {

// How far a mark may reach from its point to any side, in pixels.
inline int ReachOf(const PointSymbol& symbol) {
  return symbol.size + std::max(symbol.pen.width, 1) + 2;
}

// Larger marks are left to GDI.
inline bool IsSmallMark(const PointSymbol& symbol) {
  return symbol.size <= kLargestDrawn && symbol.pen.width >= 0 && symbol.pen.width <= kLargestDrawn;
}

// What a mark depends on: not on the label.
inline PointSymbol MarkOnly(PointSymbol symbol) {
  symbol.label_height = 0;
  symbol.label = LabelContent::kName;
  return symbol;
}

// A shape that GDI draws the same way at every place.
struct GdiShape {
  int reach;                                // from its place to any side, in pixels
  std::function<void(GdiCanvas& gdi)> use;  // takes pen and brush into use
  std::function<void(GdiCanvas& gdi, ScreenPoint at)> draw;
};

inline GdiShape MarkOf(const PointSymbol& symbol) {
  return {ReachOf(symbol), [=](GdiCanvas& gdi) { gdi.UsePointSymbol(symbol); },
          [](GdiCanvas& gdi, ScreenPoint at) { gdi.Mark(at); }};
}

// Whether `draw(pixels, at)` draws what GDI draws as the shape: over any picture, and cut by its
// edges.
template <class Reference, class Trial, class Draw>
[[nodiscard]] bool DrawsGdiShape(const GdiShape& shape, Draw draw) {
  const int reach = shape.reach;
  const int width = 2 * reach + 4;
  const int height = 2 * reach + 3;
  Reference reference(width, height);
  if (!reference.IsMade()) return false;
  GdiCanvas gdi(reference.Dc());
  shape.use(gdi);
  const ScreenPoint places[] = {
      {reach + 2, reach + 1}, {0, 0}, {width, height}, {0, reach}, {reach, height - 2}};
  return std::all_of(std::begin(places), std::end(places), [&](ScreenPoint at) {
    reference.FillUnevenly();
    const Trial trial(reference);
    draw(trial.Pixels(), at);
    shape.draw(gdi, at);
    return trial.Equals(reference);
  });
}

// A reference bitmap with room for labels of up to `length` characters of a font of `height`
// pixels, drawn in `color`.
template <class Reference, class Trial>
class LabelReference {
 public:
  LabelReference(int height, int length, std::uint32_t color)
      : room_(std::max(height, kLeastRoom)),
        widest_(room_ * 2),
        inside_{room_, room_},
        right_(room_ * 2 + widest_ * length),
        reference_(right_, room_ * 3),
        gdi_(reference_.Dc()) {
    PointSymbol symbol;
    symbol.label_height = height;
    gdi_.UsePointSymbol(symbol);
    gdi_.UseTextColor(color);
  }

  // False when there was no memory; nothing else may be called then.
  [[nodiscard]] bool IsMade() const { return reference_.IsMade(); }

  // Whether `draw(pixels, at)` draws what GDI draws as this label with its top left corner at `at`:
  // over any picture, and cut by its edges.
  template <class Draw>
  [[nodiscard]] bool IsGdiLabel(NameView text, Draw draw) {
    for (const ScreenPoint& at :
         {inside_, ScreenPoint{-3, -3}, ScreenPoint{right_ - 5, inside_.y}}) {
      reference_.FillUnevenly();
      const Trial trial(reference_);
      draw(trial.Pixels(), at);
      gdi_.Label(at, text);
      if (!trial.Equals(reference_)) return false;
    }
    return true;
  }

 protected:
  // The pixels from a character to the next one; -1 where they are too many for the room.
  [[nodiscard]] int AdvanceOf(const Letter& letter) {
    const std::u16string text = letter.Plain();
    const int advance =
        reference_.Dc().GetTextExtent(AsWide(text.data()), static_cast<int>(text.size())).cx;
    return advance > widest_ ? -1 : advance;
  }

  void UseTextColor(std::uint32_t color) { gdi_.UseTextColor(color); }

  // Far enough from the edges for one character.
  [[nodiscard]] ScreenPoint Inside() const { return inside_; }

  // Draws a character there and returns the picture.
  [[nodiscard]] const auto& Drawn(const Letter& letter) {
    gdi_.Label(inside_, letter.Spelled());
    return reference_.Pixels();
  }

  [[nodiscard]] Reference& Paper() { return reference_; }

 private:
  // The lowest fonts leave as much room above an underline as others.
  static constexpr int kLeastRoom = 16;

  int room_;    // above, below and beside a label, in pixels
  int widest_;  // what a character may take of the row, in pixels
  ScreenPoint inside_;
  int right_;
  Reference reference_;
  GdiCanvas gdi_;
};

}  // namespace tavix
