// Positions on the ground, in plan, with the lengths and areas between them. Metres and square
// metres.
#pragma once

#include <cmath>
#include <span>

namespace fieldhost {

struct GroundPosition {
  double north = 0.0;
  double east = 0.0;

  friend bool operator==(const GroundPosition&, const GroundPosition&) = default;
};

[[nodiscard]] inline double Distance(const GroundPosition& from, const GroundPosition& to) {
  return std::hypot(to.north - from.north, to.east - from.east);
}

// Along the vertices in their order; 0 for fewer than two.
[[nodiscard]] double PathLength(std::span<const GroundPosition> vertices);

// The same and back to the first vertex.
[[nodiscard]] double Perimeter(std::span<const GroundPosition> vertices);

// Of the closed boundary, whichever way round it runs; 0 for fewer than three vertices. Undefined
// for a boundary that crosses itself.
[[nodiscard]] double EnclosedArea(std::span<const GroundPosition> vertices);

// True when two sides of the closed boundary intersect. Sides that only touch do not: a boundary
// may run back to a vertex that it had before.
[[nodiscard]] bool CrossesItself(std::span<const GroundPosition> vertices);

}  // namespace fieldhost
