#include "host/survey/height_range.h"

#include <algorithm>

namespace fieldhost {

void HeightRange::Include(const Survey& survey) {
  for (const SurveyPoint& point : survey.points) {
    if (!point.height) continue;
    lowest = points == 0 ? *point.height : std::min(lowest, *point.height);
    highest = points == 0 ? *point.height : std::max(highest, *point.height);
    ++points;
  }
}

}  // namespace fieldhost
