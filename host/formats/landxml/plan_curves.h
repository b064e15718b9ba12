// Arcs and spirals of a design, as pieces that can be drawn.
#pragma once

#include <optional>

#include "host/survey/ground_geometry.h"
#include "host/survey/survey.h"

namespace fieldhost {

enum class Rotation { kClockwise, kCounterClockwise };  // as seen on the map

// By how much the azimuth from `centre` changes from `from` to `to`, in radians, above 0 and up to
// a full circle.
[[nodiscard]] double TurnAbout(GroundPosition centre, GroundPosition from, GroundPosition to,
                               Rotation rotation);

// Above 0 when the path over the vertex bends clockwise, below 0 when counterclockwise.
[[nodiscard]] double BendAt(GroundPosition from, GroundPosition vertex, GroundPosition to);

// The arc from `from` to `to` that turns by `turn` about `centre`: several arcs when it is long.
[[nodiscard]] PlanElement ArcAbout(GroundPosition centre, GroundPosition from, GroundPosition to,
                                   double radius, Rotation rotation, double turn);

// The centre of the arc of `radius` from `from` to `to`; that of the longer arc where `is_long`.
// Nothing when the radius does not reach.
[[nodiscard]] std::optional<GroundPosition> CentreOf(GroundPosition from, GroundPosition to,
                                                     double radius, Rotation rotation,
                                                     bool is_long);

// A clothoid by its curvatures (1 / radius, 0 or more, not both 0) and its length.
struct SpiralShape {
  double start_curvature = 0.0;
  double end_curvature = 0.0;
  double length = 0.0;
  Rotation rotation = Rotation::kClockwise;
};

// The distance between the ends of such a spiral.
[[nodiscard]] double ChordOf(const SpiralShape& shape);

// The spiral between two ends that lie a chord apart. One whose curvature does not change is an
// arc; one that turns further than a clothoid can be drawn is a polyline.
[[nodiscard]] PlanElement SpiralBetween(GroundPosition from, GroundPosition to,
                                        const SpiralShape& shape);

}  // namespace fieldhost
