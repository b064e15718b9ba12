// The bytes of the legend file; docs/formats/legend-file.md describes them.
#pragma once

#include <string>
#include <string_view>

#include "store/legend_table.h"

namespace tavix {

// The file's text: a header record and sixteen entry records of 30 bytes each.
[[nodiscard]] std::string EncodeLegend(const LegendTable& table);

// Takes a file's bytes into `table`. False when the file is bad (short, unmarked, fewer than
// sixteen entries); the table's entries are then untouched, but a header number that could be read
// has been taken all the same.
[[nodiscard]] bool DecodeLegend(std::string_view bytes, LegendTable& table);

}  // namespace tavix
