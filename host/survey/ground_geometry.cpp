#include "host/survey/ground_geometry.h"

#include <cstddef>

namespace fieldhost {
namespace {

struct Side {
  GroundPosition from;
  GroundPosition to;
};

// Which side of the line `at` lies on: its sign; 0 on the line.
int SideOf(const Side& line, const GroundPosition& at) {
  const double turn = (line.to.north - line.from.north) * (at.east - line.from.east) -
                      (line.to.east - line.from.east) * (at.north - line.from.north);
  return (turn > 0.0) - (turn < 0.0);
}

bool Separates(const Side& line, const Side& other) {
  return SideOf(line, other.from) * SideOf(line, other.to) < 0;
}

Side SideAt(std::span<const GroundPosition> vertices, std::size_t i) {
  return {vertices[i], vertices[(i + 1) % vertices.size()]};
}

}  // namespace

double PathLength(std::span<const GroundPosition> vertices) {
  double length = 0.0;
  for (std::size_t i = 1; i < vertices.size(); ++i)
    length += Distance(vertices[i - 1], vertices[i]);
  return length;
}

double Perimeter(std::span<const GroundPosition> vertices) {
  return vertices.empty() ? 0.0
                          : PathLength(vertices) + Distance(vertices.back(), vertices.front());
}

// Triangles from the first vertex. Grid coordinates are large and parcels small: products of the
// coordinates themselves would lose the digits that count.
double EnclosedArea(std::span<const GroundPosition> vertices) {
  double twice = 0.0;
  for (std::size_t i = 2; i < vertices.size(); ++i) {
    const double north1 = vertices[i - 1].north - vertices[0].north;
    const double east1 = vertices[i - 1].east - vertices[0].east;
    const double north2 = vertices[i].north - vertices[0].north;
    const double east2 = vertices[i].east - vertices[0].east;
    twice += north1 * east2 - north2 * east1;
  }
  return std::abs(twice) * 0.5;
}

bool CrossesItself(std::span<const GroundPosition> vertices) {
  for (std::size_t i = 0; i < vertices.size(); ++i) {
    const Side one = SideAt(vertices, i);
    for (std::size_t j = i + 1; j < vertices.size(); ++j) {
      const Side other = SideAt(vertices, j);
      if (Separates(one, other) && Separates(other, one)) return true;
    }
  }
  return false;
}

}  // namespace fieldhost
