#include "host/load_report.h"

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

std::string Summary(const Survey& survey, std::size_t skipped_lines) {
  std::string text = Counted(survey.points.size(), "point");
  if (!survey.lots.empty()) text += ", " + Counted(survey.lots.size(), "lot");
  if (skipped_lines > 0) text += ", " + Counted(skipped_lines, "line") + " skipped";
  return text;
}

std::string Sentence(const Diagnostic& diagnostic) {
  return diagnostic.file + ", line " + std::to_string(diagnostic.line) + ": " +
         diagnostic.sentence + '.';
}

}  // namespace fieldhost
