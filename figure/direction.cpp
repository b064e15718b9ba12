#include "figure/direction.h"

#include <cmath>

namespace tavix {
namespace {

constexpr double kHalfPi = 1.5707963267948966;
constexpr double kPi = 3.141592653589793;
constexpr double kThreeHalvesPi = 4.71238898038469;
constexpr double kTwoPi = 6.283185307179586;

}  // namespace

double Direction(double dx, double dy) {
  if (std::fabs(dx) < kGeometryZero) return dy > 0 ? kHalfPi : kThreeHalvesPi;
  const double angle = std::atan(dy / dx);
  if (dx < 0) return angle + kPi;
  return dy >= 0 ? angle : angle + kTwoPi;
}

Inverse InverseOf(GroundPoint from, GroundPoint to) {
  const double dx = to.north - from.north;
  const double dy = to.east - from.east;
  const bool coincide = std::fabs(dx) < kGeometryZero && std::fabs(dy) < kGeometryZero;
  return {std::sqrt(dy * dy + dx * dx), coincide ? 0.0 : Direction(dx, dy)};
}

}  // namespace tavix
