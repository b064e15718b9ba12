// Which marks may be drawn here, and whether they are the system's.
#pragma once

#include <algorithm>

#include "draw/gdi_canvas.h"
#include "store/symbols.h"

namespace tavix {

// How far a mark may reach from its point to any side, in pixels.
inline int ReachOf(const PointSymbol& symbol) {
  return symbol.size + std::max(symbol.pen.width, 1) + 2;
}

inline bool IsSmallMark(const PointSymbol& symbol) {
  return symbol.size <= kLargestDrawn && symbol.pen.width >= 0 && symbol.pen.width <= kLargestDrawn;
}

// What a mark depends on: not on the label.
inline PointSymbol MarkOnly(PointSymbol symbol) {
  symbol.label_height = 0;
  symbol.label = LabelContent::kName;
  return symbol;
}

// Whether `draw(pixels, at)` draws what the system draws as the symbol's mark: over any picture and
// cut by its edges. `Sample` is a picture that the system draws in, `Own` a copy of one.
template <class Sample, class Own, class Draw>
[[nodiscard]] bool IsSystemsMarkIn(const PointSymbol& symbol, Draw draw) {
  const int reach = ReachOf(symbol);
  const int width = 2 * reach + 4;
  const int height = 2 * reach + 3;
  Sample sample(width, height);
  if (!sample.IsMade()) return false;
  GdiCanvas plain(sample.Dc());
  plain.UsePointSymbol(symbol);
  const ScreenPoint places[] = {
      {reach + 2, reach + 1}, {0, 0}, {width, height}, {0, reach}, {reach, height - 2}};
  return std::all_of(std::begin(places), std::end(places), [&](ScreenPoint at) {
    sample.FillUnevenly();
    const Own own(sample);
    draw(own.Pixels(), at);
    plain.Mark(at);
    return own.Equals(sample);
  });
}

}  // namespace tavix
