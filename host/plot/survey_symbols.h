// The symbols of a survey's points and lines: the values of their legends, as <tavix/tavix.h>
// describes them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "host/survey/survey.h"

namespace fieldhost {

// Sizes are even: the plot's settings offer no others.
struct PointSymbol {
  const char* title;    // in the settings
  int mark;             // 1 to 11
  int pen_width;        // pixels
  std::uint32_t color;  // 0x00BBGGRR
  int mark_size;        // pixels
  int label_height;     // pixels, 0 for no label
};

struct LineSymbol {
  LineKind kind;
  int style;            // 101 to 105
  short dash;           // pixels
  short gap;            // pixels
  int pen_width;        // pixels
  std::uint32_t color;  // 0x00BBGGRR
};

// The first is that of points of any other kind.
[[nodiscard]] std::span<const PointSymbol> PointSymbols();

// The index of the symbol for a kind of point, by the words that field codes begin with, in English
// or Japanese.
[[nodiscard]] std::size_t PointSymbolOf(std::string_view kind);

// One for each kind of line. Parcels between points have that of parcels with an outline.
[[nodiscard]] std::span<const LineSymbol> LineSymbols();

}  // namespace fieldhost
