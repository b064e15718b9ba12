// The form of a coordinate list: how it is written, what its columns are, where its points begin.
#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "host/formats/coordinates/column_layout.h"
#include "host/formats/coordinates/coordinate_line.h"
#include "host/formats/text_lines.h"

namespace fieldhost {

struct ListForm {
  ListNotation notation;
  ColumnLayout layout = ColumnLayout::Pnezd();
  std::size_t head_lines = 0;  // titles and a header, before the points
  std::string refusal;         // why the columns cannot be plotted, as the end of a sentence
};

// Finds the form by the first lines, of which there is at least one.
//
// A header that names a north and an east column gives the layout. Without a header the columns are
// number, northing, easting, elevation, description. One that names others, latitude and longitude
// above all, would have its columns plotted as metres: such a list is refused.
[[nodiscard]] ListForm FormOf(std::span<const TextLine> lines);

}  // namespace fieldhost
