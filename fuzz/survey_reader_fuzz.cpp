// Any bytes as a survey file of either format: no crash, and what comes out keeps its promises.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "host/readers/survey_reader.h"
#include "host/readers/text_encoding.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

void CheckSurvey(const fieldhost::Survey& survey) {
  for (const fieldhost::SurveyPoint& point : survey.points) {
    Require(std::isfinite(point.north) && std::isfinite(point.east));
    Require(!point.height || std::isfinite(*point.height));
    Require(!point.name.empty() && fieldhost::IsUtf8(point.name));
  }
  for (const fieldhost::SurveyLot& lot : survey.lots) {
    Require(!lot.corners.empty());
    for (const std::size_t corner : lot.corners) Require(corner < survey.points.size());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  for (const char* name : {"survey.sim", "survey.csv"}) {
    fieldhost::ReadLog log(name);
    CheckSurvey(fieldhost::ReadSurvey(name, bytes, log));
    for (const fieldhost::Diagnostic& diagnostic : log.Diagnostics()) {
      Require(diagnostic.line >= 1 && fieldhost::IsUtf8(diagnostic.sentence));
    }
    Require(log.SkippedLines() >= log.Diagnostics().size());
  }
  return 0;
}
