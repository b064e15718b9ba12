// Any bytes as a survey file with the ending TAVIX_SURVEY_ENDING: what is read of them keeps the
// promises of survey.h, and what is skipped is said in whole sentences.

#include <algorithm>
#include <cmath>
#include <string>
#include <variant>

#include "fuzzers/fuzz_input.h"
#include "host/formats/survey_formats.h"
#include "host/formats/text_encoding.h"

namespace {

using fieldhost::IsUtf8;
using tavix::fuzz::Require;

bool IsFinite(fieldhost::GroundPosition position) {
  return std::isfinite(position.north) && std::isfinite(position.east);
}

struct PieceCheck {
  void operator()(const fieldhost::PlanStraight& line) const {
    Require(IsFinite(line.from) && IsFinite(line.to), "a straight has finite ends");
  }
  void operator()(const fieldhost::PlanArc& arc) const {
    Require(IsFinite(arc.from) && IsFinite(arc.to), "an arc has finite ends");
    Require(std::isfinite(arc.radius) && arc.radius != 0.0, "an arc has a radius");
  }
  void operator()(const fieldhost::PlanClothoid& clothoid) const {
    Require(IsFinite(clothoid.from) && IsFinite(clothoid.to), "a clothoid has finite ends");
    Require(std::isfinite(clothoid.parameter) && clothoid.parameter > 0.0, "and a parameter");
    const double start = std::abs(clothoid.start_radius);
    const double end = std::abs(clothoid.end_radius);
    Require(std::isfinite(start) && std::isfinite(end) && start + end > 0.0, "and a radius");
    Require(start == 0.0 || end == 0.0 || end < start, "of two radii the second is the smaller");
  }
  void operator()(const fieldhost::PlanPolyline& polyline) const {
    const auto& vertices = polyline.vertices;
    Require(vertices.size() >= 2, "a polyline has two vertices");
    Require(std::all_of(vertices.begin(), vertices.end(), IsFinite), "its vertices are finite");
  }
};

void CheckLine(const fieldhost::SurveyLine& line) {
  Require(!line.elements.empty(), "a line has an element");
  Require(IsUtf8(line.name), "the name of a line is text");
  for (const fieldhost::PlanElement& element : line.elements) {
    Require(!element.empty(), "an element has a piece");
    for (const fieldhost::PlanPiece& piece : element) std::visit(PieceCheck(), piece);
  }
}

void CheckSurvey(const fieldhost::Survey& survey) {
  for (const fieldhost::SurveyPoint& point : survey.points) {
    Require(IsFinite(point.Position()), "a point has a position");
    Require(!point.height || std::isfinite(*point.height), "a height is finite");
    Require(!point.name.empty() && IsUtf8(point.name), "a point has a name");
    Require(IsUtf8(point.kind), "a kind is text");
  }
  for (const fieldhost::SurveyParcel& parcel : survey.parcels) {
    Require(!parcel.vertices.empty() && IsUtf8(parcel.name), "a parcel has a vertex");
    for (const std::size_t vertex : parcel.vertices) {
      Require(vertex < survey.points.size(), "vertices are points of the survey");
    }
  }
  for (const fieldhost::SurveyLine& line : survey.lines) CheckLine(line);
}

void CheckLog(const fieldhost::ReadLog& log) {
  for (const fieldhost::Diagnostic& diagnostic : log.Diagnostics()) {
    Require(diagnostic.line >= 1, "lines count from 1");
    Require(!diagnostic.sentence.empty() && IsUtf8(diagnostic.sentence), "a sentence is text");
  }
  Require(log.SkippedLines() + log.SkippedElements() >= log.Diagnostics().size(),
          "a sentence is about something skipped");
  Require(IsUtf8(log.Refusal()), "a refusal is text");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const tavix::fuzz::FuzzInput input(data, size);
  const std::string name = std::string("survey") + TAVIX_SURVEY_ENDING;
  fieldhost::ReadLog log(name);
  CheckSurvey(fieldhost::ReadSurvey(name, input.Rest(), log));
  CheckLog(log);
  // Files of any other name are asked for their format.
  for (const fieldhost::SurveyFormat& format : fieldhost::SurveyFormats()) {
    format.recognises(input.Rest());
  }
  return 0;
}
