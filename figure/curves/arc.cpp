#include "figure/curves/arc.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "figure/curves/azimuth.h"

namespace tavix {
namespace {

constexpr double kTwoPi = 6.283185307179586;
constexpr double kStep = 0.08726646259971647;  // 5 degrees

bool Coincide(GroundPoint a, GroundPoint b) {
  return std::fabs(a.north - b.north) < kGeometryZero && std::fabs(a.east - b.east) < kGeometryZero;
}

}  // namespace

// Intersection of two circles, seen from p toward q at distance d: a = (r1^2 - r2^2 + d^2) / 2d
// ahead, h = sqrt(r1^2 - a^2) to the right.
std::optional<GroundPoint> TwoCircleCentre(GroundPoint p, double r1, GroundPoint q, double r2) {
  r1 = std::fabs(r1);
  r2 = std::fabs(r2);
  const double north = q.north - p.north;
  const double east = q.east - p.east;
  const double d = std::sqrt(north * north + east * east);
  if (Coincide(p, q) || d > r1 + r2) return std::nullopt;

  const double a = (r1 * r1 - r2 * r2 + d * d) / d * 0.5;
  const bool cross = d < r1 + r2 && r1 < d + r2 && r2 < d + r1;
  const double h = cross ? std::sqrt(std::max(0.0, r1 * r1 - a * a)) : 0.0;
  const double azimuth = Azimuth(north, east);
  const double c = std::cos(azimuth);
  const double s = std::sin(azimuth);
  return GroundPoint{p.north + c * a - s * h, p.east + s * a + c * h};
}

Polyline BuildArc(GroundPoint start, GroundPoint end, double r) {
  if (r < 0) {
    r = -r;
    std::swap(start, end);
  }
  const std::optional<GroundPoint> centre = TwoCircleCentre(start, r, end, r);
  if (!centre) return {};

  const double first = InverseOf(*centre, start).azimuth;
  double last = InverseOf(*centre, end).azimuth;
  if (last < first) last += kTwoPi;

  Polyline points{start};
  for (int k = 1;; ++k) {
    const double azimuth = first + k * kStep;
    if (!(azimuth < last)) break;
    points.push_back({centre->north + r * std::cos(azimuth), centre->east + r * std::sin(azimuth)});
  }
  points.push_back(end);
  return points;
}

}  // namespace tavix
