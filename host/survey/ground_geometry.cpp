#include "host/survey/ground_geometry.h"

#include <cmath>
#include <cstddef>

namespace fieldhost {

double PathLength(std::span<const GroundPosition> corners) {
  double length = 0.0;
  for (std::size_t i = 1; i < corners.size(); ++i) length += Distance(corners[i - 1], corners[i]);
  return length;
}

double Perimeter(std::span<const GroundPosition> corners) {
  return corners.empty() ? 0.0 : PathLength(corners) + Distance(corners.back(), corners.front());
}

// Triangles from the first corner. Grid coordinates are large and lots small: products of the
// coordinates themselves would lose the digits that count.
double EnclosedArea(std::span<const GroundPosition> corners) {
  double twice = 0.0;
  for (std::size_t i = 2; i < corners.size(); ++i) {
    const double north1 = corners[i - 1].north - corners[0].north;
    const double east1 = corners[i - 1].east - corners[0].east;
    const double north2 = corners[i].north - corners[0].north;
    const double east2 = corners[i].east - corners[0].east;
    twice += north1 * east2 - north2 * east1;
  }
  return std::abs(twice) * 0.5;
}

}  // namespace fieldhost
