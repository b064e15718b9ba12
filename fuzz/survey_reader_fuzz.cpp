// Any bytes as a survey file of each format: no crash, and what comes out keeps its promises.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "host/formats/survey_formats.h"
#include "host/formats/text_encoding.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

bool IsFinite(fieldhost::GroundPosition position) {
  return std::isfinite(position.north) && std::isfinite(position.east);
}

struct PieceCheck {
  void operator()(const fieldhost::PlanStraight& line) const {
    Require(IsFinite(line.from) && IsFinite(line.to));
  }
  void operator()(const fieldhost::PlanArc& arc) const {
    Require(IsFinite(arc.from) && IsFinite(arc.to));
    Require(std::isfinite(arc.radius) && arc.radius != 0.0);
  }
  void operator()(const fieldhost::PlanClothoid& clothoid) const {
    Require(IsFinite(clothoid.from) && IsFinite(clothoid.to));
    Require(std::isfinite(clothoid.parameter) && clothoid.parameter > 0.0);
    const double start = std::abs(clothoid.start_radius);
    const double end = std::abs(clothoid.end_radius);
    Require(std::isfinite(start) && std::isfinite(end) && start + end > 0.0);
    Require(start == 0.0 || end == 0.0 || end < start);
  }
  void operator()(const fieldhost::PlanPolyline& polyline) const {
    Require(polyline.vertices.size() >= 2);
    for (const fieldhost::GroundPosition& vertex : polyline.vertices) Require(IsFinite(vertex));
  }
};

void CheckLine(const fieldhost::SurveyLine& line) {
  Require(!line.elements.empty() && fieldhost::IsUtf8(line.name));
  for (const fieldhost::PlanElement& element : line.elements) {
    Require(!element.empty());
    for (const fieldhost::PlanPiece& piece : element) std::visit(PieceCheck(), piece);
  }
}

void CheckSurvey(const fieldhost::Survey& survey) {
  for (const fieldhost::SurveyPoint& point : survey.points) {
    Require(std::isfinite(point.north) && std::isfinite(point.east));
    Require(!point.height || std::isfinite(*point.height));
    Require(!point.name.empty() && fieldhost::IsUtf8(point.name));
  }
  for (const fieldhost::SurveyParcel& parcel : survey.parcels) {
    Require(!parcel.vertices.empty());
    for (const std::size_t vertex : parcel.vertices) Require(vertex < survey.points.size());
  }
  for (const fieldhost::SurveyLine& line : survey.lines) CheckLine(line);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  for (const fieldhost::SurveyFormat& format : fieldhost::SurveyFormats()) {
    const std::string name = "survey" + std::string(format.endings.front());
    fieldhost::ReadLog log(name);
    CheckSurvey(fieldhost::ReadSurvey(name, bytes, log));
    for (const fieldhost::Diagnostic& diagnostic : log.Diagnostics()) {
      Require(diagnostic.line >= 1 && fieldhost::IsUtf8(diagnostic.sentence));
    }
    Require(log.SkippedLines() + log.SkippedElements() >= log.Diagnostics().size());
    Require(fieldhost::IsUtf8(log.Refusal()));
  }
  return 0;
}
