#include "host/survey/survey_document.h"

#include <algorithm>
#include <utility>

namespace fieldhost {

void SurveyDocument::Attach(SurveyView& view) { views_.push_back(&view); }

void SurveyDocument::Detach(SurveyView& view) { std::erase(views_, &view); }

void SurveyDocument::Add(LoadedSurvey loaded) {
  if (!loaded.survey.HasAnythingToDraw()) return;
  const SurveyAddition addition{survey_.points.size(), survey_.parcels.size(),
                                survey_.lines.size()};
  line_figures_.reserve(addition.first_line + loaded.survey.lines.size());
  Append(std::move(loaded.survey), survey_);
  while (line_figures_.size() < survey_.lines.size()) line_figures_.push_back(++last_figure_);
  skipped_lines_ += loaded.skipped_lines;
  skipped_elements_ += loaded.skipped_elements;
  for (SurveyView* const view : views_) view->SurveyAdded(addition);
}

void SurveyDocument::Clear() {
  survey_ = {};
  line_figures_.clear();
  side_figures_.clear();
  circles_.clear();
  boundaries_.clear();
  last_figure_ = 0;
  skipped_lines_ = skipped_elements_ = 0;
  refused_points_.clear();
  refused_parcels_.clear();
  refused_elements_.clear();
  for (SurveyView* const view : views_) view->SurveyCleared();
}

const SurveyPoint* SurveyDocument::FindPoint(int key) const {
  const bool is_there =
      key >= 1 && PlaceOf(key) < survey_.points.size() && !refused_points_.contains(key);
  return is_there ? &survey_.points[PlaceOf(key)] : nullptr;
}

std::optional<int> SurveyDocument::GiveFigure(const ParcelSide& side) {
  if (side_figures_.contains(side) || side_figures_.contains({side.to, side.from})) {
    return std::nullopt;
  }
  side_figures_.emplace(side, ++last_figure_);
  return last_figure_;
}

bool SurveyDocument::MovePoint(int key, const GroundPosition& place) {
  if (!FindPoint(key)) return false;
  SurveyPoint& point = survey_.points[PlaceOf(key)];
  point.north = place.north;
  point.east = place.east;
  for (SurveyView* const view : views_) view->PointMoved(key);
  return true;
}

void SurveyDocument::DrawCircle(const DrawnCircle& circle) {
  Draw(circles_, {++last_figure_, circle});
}

void SurveyDocument::DrawBoundary(PlanPolyline boundary) {
  Draw(boundaries_, {++last_figure_, std::move(boundary)});
}

void SurveyDocument::Draw(std::vector<DrawnFigure>& figures, DrawnFigure figure) {
  figures.push_back(std::move(figure));
  for (SurveyView* const view : views_) view->FigureDrawn(figures.back());
}

bool SurveyDocument::DeleteLast(std::vector<DrawnFigure>& figures) {
  if (figures.empty()) return false;
  const int number = figures.back().number;
  figures.pop_back();
  for (SurveyView* const view : views_) view->FigureDeleted(number);
  return true;
}

// Of an alignment that is refused in part, the rest is there.
SurveyCounts SurveyDocument::Refused() const {
  SurveyCounts refused;
  refused.points = refused_points_.size();
  refused.parcels = refused_parcels_.size();
  for (const auto& [line, count] : refused_elements_) {
    refused.CountLine(survey_.lines[line].kind, count);
  }
  return refused;
}

SurveyCounts SurveyDocument::Counts() const {
  SurveyCounts counts = CountsOf(survey_);
  const SurveyCounts refused = Refused();
  counts.points -= refused.points;
  counts.parcels -= refused.parcels;
  counts.polylines -= refused.polylines;
  counts.alignment_elements -= refused.alignment_elements;
  counts.skipped_lines = skipped_lines_;
  counts.skipped_elements =
      skipped_elements_ + refused.parcels + refused.polylines + refused.alignment_elements;
  return counts;
}

HeightRange SurveyDocument::Heights() const {
  HeightRange range;
  for (const SurveyPoint& point : survey_.points) {
    if (!point.height) continue;
    const bool is_first = range.points++ == 0;
    range.lowest = is_first ? *point.height : std::min(range.lowest, *point.height);
    range.highest = is_first ? *point.height : std::max(range.highest, *point.height);
  }
  return range;
}

}  // namespace fieldhost
