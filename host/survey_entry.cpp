#include "host/survey_entry.h"

#include <tavix/tavix.h>

#include "host/point_look.h"
#include "host/wide_text.h"

namespace fieldhost {

void SurveyEntry::AddLegends() {
  constexpr int kLabelIsName = 0;
  legends_.clear();
  for (const PointLook& look : PointLooks()) {
    short legend = 0;
    Tavix_AddPntHan(look.mark, look.pen_width, static_cast<int>(look.color), look.mark_size,
                    look.label_height, kLabelIsName, &legend);
    legends_.push_back(legend);
  }
}

std::size_t SurveyEntry::Enter(const Survey& survey) {
  std::size_t refused = 0;
  for (const SurveyPoint& point : survey.points) {
    Tavix_SelPntHan(legends_[LookOf(point.kind)]);
    if (Tavix_EntPnt(next_key_++, point.number, WideOf(point.name), point.north, point.east) != 0) {
      ++refused;
    }
  }
  return refused;
}

}  // namespace fieldhost
