// What a survey file holds, whatever its format. Text is UTF-8, coordinates are metres.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "host/survey/plan_element.h"

namespace fieldhost {

struct SurveyPoint {
  int number = 0;    // 0 when the file numbers the point by something else than a whole number
  std::string name;  // what a label shows; never empty
  std::string kind;  // the field code or kind of point, where the file tells; else empty
  double north = 0.0;
  double east = 0.0;
  std::optional<double> height;
};

// A parcel or an open sequence of points.
struct SurveyLot {
  std::string name;
  bool closed = false;               // the last corner is joined to the first
  std::vector<std::size_t> corners;  // indices into the survey's points, in order
};

enum class LineKind {
  kAlignment,
  kBreakline,
  kFeature,   // of a plan: kerbs, fences, walls
  kLot,       // a parcel that has its own outline in place of corners
  kBoundary,  // of a surface
  kContour,
  kPipe,
  kOther,
};

// A line that needs no points of the survey.
struct SurveyLine {
  std::string name;  // may be empty
  LineKind kind = LineKind::kOther;
  std::vector<PlanElement> elements;  // in order; at least one
};

struct Survey {
  std::vector<SurveyPoint> points;
  std::vector<SurveyLot> lots;
  std::vector<SurveyLine> lines;

  // Lots are drawn between points.
  [[nodiscard]] bool HasAnythingToDraw() const { return !points.empty() || !lines.empty(); }
};

}  // namespace fieldhost
