#include "tests/figure/curves/true_curve.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tavix::test {
namespace {

constexpr int kPieces = 4000;

// Where the curve of curvature s / a^2, turning to `side`, gets from arc length `from` to `to`.
GroundPoint Way(double from, double to, double a, double side, int panels) {
  const double h = (to - from) / (2 * panels);
  GroundPoint sum;
  for (int i = 0; i <= 2 * panels; ++i) {
    const double s = from + i * h;
    const double weight = i == 0 || i == 2 * panels ? 1.0 : (i % 2 == 1 ? 4.0 : 2.0);
    const double tangent = s * s / (2 * a * a);
    sum.north += weight * std::cos(tangent);
    sum.east += weight * side * std::sin(tangent);
  }
  return {sum.north * h / 3, sum.east * h / 3};
}

// Arc length from the straight end to a radius; 0 is the straight end.
double LengthAt(double r, double a) { return r == 0 ? 0.0 : a * a / std::fabs(r); }

}  // namespace

GroundPoint IntegratedClothoid(double tau, double a) {
  return Way(0, a * std::sqrt(2 * tau), a, 1, kPieces);
}

std::vector<GroundPoint> TrueClothoid(GroundPoint start, GroundPoint end, double r1, double a,
                                      double r2) {
  const double s1 = LengthAt(r1, a);
  const double s2 = LengthAt(r2, a);
  // Walked from the tighter end to the straighter one, the curve keeps its side on the map only
  // when mirrored: the curvature's sign belongs to the direction of travel.
  const double travel = s2 > s1 ? 1.0 : -1.0;
  const double side = (r2 == 0 ? r1 : r2) < 0 ? -travel : travel;
  std::vector<GroundPoint> local{{0, 0}};
  for (int i = 0; i < kPieces; ++i) {
    const GroundPoint step =
        Way(s1 + (s2 - s1) * i / kPieces, s1 + (s2 - s1) * (i + 1) / kPieces, a, side, 1);
    local.push_back({local.back().north + step.north, local.back().east + step.east});
  }
  const double turn = std::atan2(end.east - start.east, end.north - start.north) -
                      std::atan2(local.back().east, local.back().north);
  const double c = std::cos(turn);
  const double s = std::sin(turn);
  for (GroundPoint& p : local)
    p = {c * p.north - s * p.east + start.north, s * p.north + c * p.east + start.east};
  return local;
}

double DistanceTo(const std::vector<GroundPoint>& chain, GroundPoint point) {
  double nearest = std::numeric_limits<double>::infinity();
  for (std::size_t i = 1; i < chain.size(); ++i) {
    const GroundPoint from = chain[i - 1];
    const double dx = chain[i].north - from.north;
    const double dy = chain[i].east - from.east;
    const double square = dx * dx + dy * dy;
    const double along =
        square == 0 ? 0.0
                    : ((point.north - from.north) * dx + (point.east - from.east) * dy) / square;
    const double at = std::clamp(along, 0.0, 1.0);
    nearest = std::min(
        nearest, std::hypot(from.north + at * dx - point.north, from.east + at * dy - point.east));
  }
  return nearest;
}

}  // namespace tavix::test
