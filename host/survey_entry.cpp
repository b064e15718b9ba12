#include "host/survey_entry.h"

#include <tavix/tavix.h>

#include <limits>

#include "host/figure_entry.h"
#include "host/line_look.h"
#include "host/point_legends.h"
#include "host/wide_text.h"

namespace fieldhost {
namespace {

// A line keeps 16 bits of a key; beyond that it would join other points.
bool CanEndALine(int key) { return key <= std::numeric_limits<short>::max(); }

}  // namespace

void SurveyEntry::AddLegends() {
  PreparePointLegends();
  for (const LineLook& look : LineLooks()) {
    Tavix_AddLinHan(look.style, look.dash, look.gap, 0, look.pen_width,
                    static_cast<int>(look.color), &line_legends_[look.kind]);
  }
}

SurveyCounts SurveyEntry::Enter(const Survey& survey) {
  SurveyCounts refused;
  const int first_key = next_key_;
  for (const SurveyPoint& point : survey.points) {
    SelectPointLegend(point.kind);
    if (Tavix_EntPnt(next_key_++, point.number, WideOf(point.name), point.north, point.east) != 0) {
      ++refused.points;
    }
  }
  for (const SurveyLot& lot : survey.lots) EnterLot(lot, first_key);
  for (const SurveyLine& line : survey.lines) refused += EnterLine(line);
  return refused;
}

// Of an alignment that is refused in part, the rest is there.
SurveyCounts SurveyEntry::EnterLine(const SurveyLine& line) {
  const std::size_t refused = EnterFigure(line, next_figure_++, line_legends_[line.kind]);
  if (refused == 0) return {};
  SurveyCounts counts = CountsOf(line);
  if (line.kind == LineKind::kAlignment) counts.alignment_elements = refused;
  return counts;
}

// Each corner is joined to the next, and the last to the first where the lot is closed.
void SurveyEntry::EnterLot(const SurveyLot& lot, int first_key) {
  Tavix_SelLinHan(line_legends_[LineKind::kLot]);
  const std::size_t sides = lot.corners.size() - (lot.closed || lot.corners.empty() ? 0 : 1);
  for (std::size_t i = 0; i < sides; ++i) {
    const int from = first_key + static_cast<int>(lot.corners[i]);
    const int to = first_key + static_cast<int>(lot.corners[(i + 1) % lot.corners.size()]);
    if (from != to && CanEndALine(from) && CanEndALine(to)) Tavix_EntLin(from, to);
  }
}

}  // namespace fieldhost
