#include "figure/arc.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "figure/direction.h"

namespace tavix {
namespace {

constexpr double kTwoPi = 6.283185307179586;
constexpr double kStep = 0.08726646259971647;  // 5 degrees

bool Coincide(GroundPoint a, GroundPoint b) {
  return std::fabs(a.north - b.north) < kGeometryZero && std::fabs(a.east - b.east) < kGeometryZero;
}

}  // namespace

// Intersection of two circles in the frame whose origin is p and whose x axis runs to q = (d, 0):
// a = (r1^2 - r2^2 + d^2) / 2d along the axis, h = sqrt(r1^2 - a^2) beside it.
std::optional<GroundPoint> TwoCircleCentre(GroundPoint p, double r1, GroundPoint q, double r2) {
  r1 = std::fabs(r1);
  r2 = std::fabs(r2);
  const double dx = q.north - p.north;
  const double dy = q.east - p.east;
  const double d = std::sqrt(dx * dx + dy * dy);
  if (Coincide(p, q) || d > r1 + r2) return std::nullopt;

  const double a = (r1 * r1 - r2 * r2 + d * d) / d * 0.5;
  const bool cross = d < r1 + r2 && r1 < d + r2 && r2 < d + r1;
  const double h = cross ? std::sqrt(std::max(0.0, r1 * r1 - a * a)) : 0.0;
  const double direction = Direction(dx, dy);
  const double c = std::cos(direction);
  const double s = std::sin(direction);
  return GroundPoint{p.north + c * a - s * h, p.east + s * a + c * h};
}

Polyline BuildArc(GroundPoint start, GroundPoint end, double r) {
  if (r < 0) {
    r = -r;
    std::swap(start, end);
  }
  const std::optional<GroundPoint> centre = TwoCircleCentre(start, r, end, r);
  if (!centre) return {};

  const double first = InverseOf(*centre, start).direction;
  double last = InverseOf(*centre, end).direction;
  if (last < first) last += kTwoPi;

  Polyline points{start};
  for (int k = 1;; ++k) {
    const double angle = first + k * kStep;
    if (!(angle < last)) break;
    points.push_back({centre->north + r * std::cos(angle), centre->east + r * std::sin(angle)});
  }
  points.push_back(end);
  return points;
}

}  // namespace tavix
