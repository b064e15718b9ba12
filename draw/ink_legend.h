// A legend for pictures that know only ink and white.
#pragma once

#include "store/legend_table.h"

namespace tavix {

// The legend with every colour but white turned to black: a one-bit bitmap would map light colours
// to white, and what is drawn in them would be lost.
[[nodiscard]] LegendTable InkLegend(LegendTable legend);

}  // namespace tavix
