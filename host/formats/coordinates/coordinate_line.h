// One line of a coordinate list.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/formats/coordinates/column_layout.h"
#include "host/formats/field_text.h"
#include "host/survey/survey.h"

namespace fieldhost {

// A point, or what is wrong with the line.
struct CoordinateLine {
  std::optional<SurveyPoint> point;
  std::string problem;
};

// How the lines of a list are written.
struct ListNotation {
  char separator = ',';  // between fields
  DecimalMark decimal = DecimalMark::kPoint;
};

// Reads a line by a layout.
//
// The name is that of a name column, else the description, else the point number as it is written.
// A point number that is not a whole number is a name itself: it then goes before the description,
// and the description is the kind of point.
[[nodiscard]] CoordinateLine ReadCoordinateLine(std::string_view line, ListNotation notation,
                                                const ColumnLayout& layout);

}  // namespace fieldhost
