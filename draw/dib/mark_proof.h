// Which marks may be drawn here, and whether they are the system's.
#pragma once

#include <algorithm>

#include "draw/drawn_size.h"
#include "draw/gdi_canvas.h"
#include "store/legend_table.h"

namespace tavix {

// How far a mark may reach from its point to any side, in pixels.
inline int ReachOf(const LegendStyle& style) { return style.prm1 + std::max(style.width, 1) + 2; }

inline bool IsSmallMark(const LegendStyle& style) {
  return style.prm1 <= kLargestDrawn && style.width >= 0 && style.width <= kLargestDrawn;
}

// What a mark depends on: not on the label.
inline LegendStyle MarkOnly(LegendStyle style) {
  style.prm2 = 0;
  style.prm3 = 0;
  return style;
}

// Whether `draw(pixels, at)` draws what the system draws as the style's mark: over any picture and
// cut by its edges. `Sample` is a picture that the system draws in, `Own` a copy of one.
template <class Sample, class Own, class Draw>
[[nodiscard]] bool IsSystemsMarkIn(const LegendStyle& style, Draw draw) {
  const int reach = ReachOf(style);
  const int width = 2 * reach + 4;
  const int height = 2 * reach + 3;
  Sample sample(width, height);
  if (!sample.IsMade()) return false;
  GdiCanvas plain(sample.Dc());
  plain.UsePointStyle(style);
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
