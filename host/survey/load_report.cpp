#include "host/survey/load_report.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>
#include <utility>

namespace fieldhost {
namespace {

std::string Counted(std::size_t count, std::string_view noun) {
  std::string text = std::to_string(count);
  text += ' ';
  text += noun;
  if (count != 1) text += 's';
  return text;
}

// The counts above zero.
std::string Listed(std::initializer_list<std::pair<std::size_t, std::string_view>> counts,
                   std::string_view between) {
  std::string text;
  for (const auto& [count, noun] : counts) {
    if (count == 0) continue;
    if (!text.empty()) text += between;
    text += Counted(count, noun);
  }
  return text;
}

}  // namespace

void SurveyCounts::CountLine(LineKind kind, std::size_t elements) {
  switch (kind) {
    case LineKind::kAlignment:
      alignment_elements += elements;
      break;
    case LineKind::kParcel:
      ++parcels;
      break;
    default:
      ++polylines;
      break;
  }
}

SurveyCounts CountsOf(const Survey& survey) {
  SurveyCounts counts;
  counts.points = survey.points.size();
  counts.parcels = survey.parcels.size();
  for (const SurveyLine& line : survey.lines) counts.CountLine(line.kind, line.elements.size());
  return counts;
}

std::string Summary(const SurveyCounts& counts) {
  std::string text = Listed({{counts.points, "point"},
                             {counts.parcels, "parcel"},
                             {counts.polylines, "polyline"},
                             {counts.alignment_elements, "alignment element"}},
                            ", ");
  if (text.empty()) text = Counted(0, "point");
  const std::string skipped =
      Listed({{counts.skipped_lines, "line"}, {counts.skipped_elements, "element"}}, " and ");
  return skipped.empty() ? text : text + ", " + skipped + " skipped";
}

std::string Sentence(const Diagnostic& diagnostic) {
  return diagnostic.file + ", line " + std::to_string(diagnostic.line) + ": " +
         diagnostic.sentence + '.';
}

std::string Complaints(const LoadedSurvey& loaded, std::size_t most_lines) {
  std::string text;
  for (const std::string& refusal : loaded.refusals) text += refusal + '\n';
  const std::size_t shown = std::min(most_lines, loaded.diagnostics.size());
  for (std::size_t i = 0; i < shown; ++i) text += Sentence(loaded.diagnostics[i]) + '\n';
  if (shown < loaded.diagnostics.size()) {
    text +=
        Listed({{loaded.skipped_lines, "line"}, {loaded.skipped_elements, "element"}}, " and ") +
        " were skipped in all.\n";
  }
  return text;
}

}  // namespace fieldhost
