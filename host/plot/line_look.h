// How lines of each kind look in the plot.
#pragma once

#include <cstdint>
#include <span>

#include "host/survey/survey.h"

namespace fieldhost {

// The values of a line legend, as <tavix/tavix.h> has them.
struct LineLook {
  LineKind kind;
  int style;            // 101 to 105
  short dash;           // pixels
  short gap;            // pixels
  int pen_width;        // pixels
  std::uint32_t color;  // 0x00BBGGRR
};

// One for each kind of line; lots between points look as those with an outline.
[[nodiscard]] std::span<const LineLook> LineLooks();

}  // namespace fieldhost
