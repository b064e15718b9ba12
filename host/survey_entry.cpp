#include "host/survey_entry.h"

#include <tavix/tavix.h>

#include <limits>

#include "host/point_legends.h"
#include "host/wide_text.h"

namespace fieldhost {
namespace {

constexpr int kSolidLine = 101;

// A line keeps 16 bits of a key; beyond that it would join other points.
bool CanEndALine(int key) { return key <= std::numeric_limits<short>::max(); }

}  // namespace

void SurveyEntry::AddLegends() {
  PreparePointLegends();
  Tavix_AddLinHan(kSolidLine, 0, 0, 0, 1, static_cast<int>(RGB(0, 96, 0)), &lot_legend_);
}

std::size_t SurveyEntry::Enter(const Survey& survey) {
  std::size_t refused = 0;
  const int first_key = next_key_;
  for (const SurveyPoint& point : survey.points) {
    SelectPointLegend(point.kind);
    if (Tavix_EntPnt(next_key_++, point.number, WideOf(point.name), point.north, point.east) != 0) {
      ++refused;
    }
  }
  for (const SurveyLot& lot : survey.lots) EnterLot(lot, first_key);
  return refused;
}

// Each corner is joined to the next, and the last to the first where the lot is closed.
void SurveyEntry::EnterLot(const SurveyLot& lot, int first_key) {
  Tavix_SelLinHan(lot_legend_);
  const std::size_t sides = lot.corners.size() - (lot.closed || lot.corners.empty() ? 0 : 1);
  for (std::size_t i = 0; i < sides; ++i) {
    const int from = first_key + static_cast<int>(lot.corners[i]);
    const int to = first_key + static_cast<int>(lot.corners[(i + 1) % lot.corners.size()]);
    if (from != to && CanEndALine(from) && CanEndALine(to)) Tavix_EntLin(from, to);
  }
}

}  // namespace fieldhost
