// How large what a legend asks for is drawn.
#pragma once

#include <algorithm>

#include "store/legend_table.h"

namespace tavix {

// The widest pen, the largest mark and the highest label, in pixels. The system takes from seconds
// to minutes for a picture of larger ones; a legend keeps the values it was given.
constexpr int kLargestDrawn = 100;

// A width, size or height as it is drawn. A negative width is as wide as a positive one.
inline int DrawnSize(int pixels) { return std::clamp(pixels, -kLargestDrawn, kLargestDrawn); }

// The style of points as it is drawn.
inline LegendStyle DrawnPointStyle(LegendStyle style) {
  style.prm1 = DrawnSize(style.prm1);
  style.prm2 = DrawnSize(style.prm2);
  style.width = DrawnSize(style.width);
  return style;
}

// The style of lines as it is drawn; the lengths of a pattern have no limit.
inline LegendStyle DrawnLineStyle(LegendStyle style) {
  style.width = DrawnSize(style.width);
  return style;
}

}  // namespace tavix
