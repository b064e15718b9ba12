// Coordinate lists: one point a line, as number, northing, easting, elevation, description or by a
// header line; separated by commas, tabs, semicolons or blanks. Decimals follow a point, or a comma
// where that separates nothing.
#pragma once

#include "host/formats/read_log.h"
#include "host/formats/text_lines.h"
#include "host/survey/survey.h"

namespace fieldhost {

// Reads all points. Other lines are skipped and logged, except those above the first point.
// Refuses, in the log, a list whose header names other columns than northing and easting.
[[nodiscard]] Survey ReadCoordinates(const TextLines& lines, ReadLog& log);

}  // namespace fieldhost
