#include "host/load_report.h"

#include <algorithm>
#include <string_view>

namespace fieldhost {
namespace {

std::string Counted(std::size_t count, std::string_view noun) {
  std::string text = std::to_string(count);
  text += ' ';
  text += noun;
  if (count != 1) text += 's';
  return text;
}

}  // namespace

SurveyCounts& SurveyCounts::operator+=(const SurveyCounts& other) {
  points += other.points;
  lots += other.lots;
  skipped_lines += other.skipped_lines;
  return *this;
}

SurveyCounts CountsOf(const LoadedSurvey& loaded) {
  return {loaded.survey.points.size(), loaded.survey.lots.size(), loaded.skipped_lines};
}

std::string Summary(const SurveyCounts& counts) {
  std::string text = Counted(counts.points, "point");
  if (counts.lots > 0) text += ", " + Counted(counts.lots, "lot");
  if (counts.skipped_lines > 0) text += ", " + Counted(counts.skipped_lines, "line") + " skipped";
  return text;
}

std::string Sentence(const Diagnostic& diagnostic) {
  return diagnostic.file + ", line " + std::to_string(diagnostic.line) + ": " +
         diagnostic.sentence + '.';
}

std::string Complaints(const LoadedSurvey& loaded, std::size_t most_lines) {
  std::string text;
  for (const std::string& refusal : loaded.refusals) text += refusal + '\n';
  const std::size_t told = std::min(most_lines, loaded.diagnostics.size());
  for (std::size_t i = 0; i < told; ++i) text += Sentence(loaded.diagnostics[i]) + '\n';
  if (told < loaded.diagnostics.size()) {
    text += Counted(loaded.skipped_lines, "line") + " were skipped in all.\n";
  }
  return text;
}

}  // namespace fieldhost
