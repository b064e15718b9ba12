// What survey files hold, in any format. Text is UTF-8, coordinates are metres.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "host/survey/ground_geometry.h"

namespace fieldhost {

struct SurveyPoint {
  int number = 0;    // 0 when the file numbers the point by something else than a whole number
  std::string name;  // what a label shows; never empty
  std::string kind;  // the field code or kind of point; empty when the file has none
  double north = 0.0;
  double east = 0.0;
  std::optional<double> height;

  [[nodiscard]] GroundPosition Position() const { return {north, east}; }
};

// A parcel or an open sequence of points.
struct SurveyParcel {
  std::string name;
  bool closed = false;                // the last vertex is joined to the first
  std::vector<std::size_t> vertices;  // indices into the survey's points, in order
};

// The pieces that lines are made of, in plan. A positive radius turns clockwise on the map, from
// north toward east; a negative one the other way.

struct PlanStraight {
  GroundPosition from;
  GroundPosition to;
};

// An arc of less than half a circle.
struct PlanArc {
  GroundPosition from;
  GroundPosition to;
  double radius = 0.0;
};

// A radius of 0 is a straight end. Between two radii the second is the smaller.
struct PlanClothoid {
  GroundPosition from;
  GroundPosition to;
  double start_radius = 0.0;
  double parameter = 0.0;
  double end_radius = 0.0;
};

// At least two vertices.
struct PlanPolyline {
  std::vector<GroundPosition> vertices;
};

using PlanPiece = std::variant<PlanStraight, PlanArc, PlanClothoid, PlanPolyline>;

// What a file gives as one element may take several pieces: a long arc does.
using PlanElement = std::vector<PlanPiece>;

enum class LineKind {
  kAlignment,
  kBreakline,
  kFeature,   // of a plan: kerbs, fences, walls
  kParcel,    // a parcel that has its own outline in place of vertices
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
  std::vector<SurveyParcel> parcels;
  std::vector<SurveyLine> lines;

  // Parcels are drawn between points.
  [[nodiscard]] bool HasAnythingToDraw() const { return !points.empty() || !lines.empty(); }
};

}  // namespace fieldhost
