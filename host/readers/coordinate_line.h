// One line of a coordinate list.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/readers/column_layout.h"
#include "host/readers/survey.h"

namespace fieldhost {

// A point, or what is wrong with the line.
struct CoordinateLine {
  std::optional<SurveyPoint> point;
  std::string problem;
};

// Reads a line by a layout.
//
// The name is that of a name column, else the description, else the point number as it is written.
// A point number that is not a whole number is a name itself: it then goes before the description,
// and the description is the kind of point.
[[nodiscard]] CoordinateLine ReadCoordinateLine(std::string_view line, char separator,
                                                const ColumnLayout& layout);

}  // namespace fieldhost
