// The heights that a survey's points span.
#pragma once

#include <cstddef>

#include "host/survey/survey.h"

namespace fieldhost {

struct HeightRange {
  std::size_t points = 0;  // that have a height
  double lowest = 0.0;     // metres; both 0 without such points
  double highest = 0.0;

  void Include(const Survey& survey);
};

}  // namespace fieldhost
