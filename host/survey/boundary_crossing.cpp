#include "host/survey/boundary_crossing.h"

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

Side SideAt(std::span<const GroundPosition> corners, std::size_t i) {
  return {corners[i], corners[(i + 1) % corners.size()]};
}

}  // namespace

bool CrossesItself(std::span<const GroundPosition> corners) {
  for (std::size_t i = 0; i < corners.size(); ++i) {
    const Side one = SideAt(corners, i);
    for (std::size_t j = i + 1; j < corners.size(); ++j) {
      const Side other = SideAt(corners, j);
      if (Separates(one, other) && Separates(other, one)) return true;
    }
  }
  return false;
}

}  // namespace fieldhost
