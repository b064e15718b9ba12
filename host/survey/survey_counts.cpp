#include "host/survey/survey_counts.h"

namespace fieldhost {

SurveyCounts& SurveyCounts::operator+=(const SurveyCounts& other) {
  points += other.points;
  lots += other.lots;
  polylines += other.polylines;
  alignment_elements += other.alignment_elements;
  skipped_lines += other.skipped_lines;
  skipped_elements += other.skipped_elements;
  return *this;
}

void SurveyCounts::TakeOut(const SurveyCounts& refused) {
  points -= refused.points;
  lots -= refused.lots;
  polylines -= refused.polylines;
  alignment_elements -= refused.alignment_elements;
  skipped_elements += refused.lots + refused.polylines + refused.alignment_elements;
}

SurveyCounts CountsOf(const SurveyLine& line) {
  SurveyCounts counts;
  switch (line.kind) {
    case LineKind::kAlignment:
      counts.alignment_elements = line.elements.size();
      break;
    case LineKind::kLot:
      counts.lots = 1;
      break;
    default:
      counts.polylines = 1;
      break;
  }
  return counts;
}

SurveyCounts CountsOf(const Survey& survey) {
  SurveyCounts counts;
  counts.points = survey.points.size();
  counts.lots = survey.lots.size();
  for (const SurveyLine& line : survey.lines) counts += CountsOf(line);
  return counts;
}

}  // namespace fieldhost
