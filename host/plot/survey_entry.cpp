#include "host/plot/survey_entry.h"

#include <tavix/tavix.h>

#include <limits>
#include <optional>

#include "host/app/wide_text.h"
#include "host/plot/figure_entry.h"
#include "host/plot/line_look.h"
#include "host/plot/point_legends.h"

namespace fieldhost {
namespace {

// A line keeps 16 bits of a key; beyond that it would join other points.
bool CanEndALine(int key) { return key <= std::numeric_limits<short>::max(); }

std::optional<GroundPosition> PlaceOf(int key) {
  GroundPosition place;
  if (Tavix_GetPntCrd(key, &place.north, &place.east) != 0) return std::nullopt;
  return place;
}

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
    Tavix_SelPntHan(PointLegend(point.kind));
    if (Tavix_EntPnt(next_key_++, point.number, WideOf(point.name), point.north, point.east) != 0) {
      ++refused.points;
    }
  }
  Tavix_SelLinHan(line_legends_[LineKind::kLot]);
  for (const SurveyLot& lot : survey.lots) {
    if (!EnterLot(lot, first_key)) ++refused.lots;
  }
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
bool SurveyEntry::EnterLot(const SurveyLot& lot, int first_key) {
  bool entered = true;
  const std::size_t sides = lot.corners.size() - (lot.closed || lot.corners.empty() ? 0 : 1);
  for (std::size_t i = 0; i < sides; ++i) {
    const int from = first_key + static_cast<int>(lot.corners[i]);
    const int to = first_key + static_cast<int>(lot.corners[(i + 1) % lot.corners.size()]);
    if (!EnterSide({from, to})) entered = false;
  }
  return entered;
}

// A figure looks as a line does. As with lines, the side that two lots share is there once.
bool SurveyEntry::EnterSide(const Side& side) {
  const auto [from, to] = side;
  if (from == to) return true;
  if (CanEndALine(from) && CanEndALine(to)) return Tavix_EntLin(from, to) == 0;
  if (figure_sides_.contains(side) || figure_sides_.contains({to, from})) return true;
  const int figure = next_figure_++;
  figure_sides_.emplace(side, figure);
  return EnterAsFigure(side, figure);
}

bool SurveyEntry::EnterAsFigure(const Side& side, int figure) {
  const std::optional<GroundPosition> from = PlaceOf(side.first);
  const std::optional<GroundPosition> to = PlaceOf(side.second);
  if (!from || !to) return false;
  Tavix_FigStt(figure, line_legends_[LineKind::kLot]);
  const int refused = Tavix_FigMdlLin(from->north, from->east, to->north, to->east);
  Tavix_FigEnd();
  return refused == 0;
}

// Lines know their points, figures do not.
bool SurveyEntry::MovePoint(int key, const GroundPosition& place) {
  if (Tavix_ChgPntCrd(key, place.north, place.east) != 0) return false;
  for (const auto& [side, figure] : figure_sides_) {
    if (side.first != key && side.second != key) continue;
    Tavix_DelFig(figure);
    EnterAsFigure(side, figure);
  }
  return true;
}

void SurveyEntry::StartOver() {
  figure_sides_.clear();
  next_key_ = next_figure_ = 1;
}

}  // namespace fieldhost
