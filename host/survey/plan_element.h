// Elements that lines of a survey are made of, in plan.
#pragma once

#include <variant>
#include <vector>

#include "host/survey/ground_position.h"

namespace fieldhost {

// Radii and the parameter are metres. A positive radius turns clockwise on the map, from north
// toward east; a negative one the other way.

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

}  // namespace fieldhost
