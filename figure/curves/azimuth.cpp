#include "figure/curves/azimuth.h"

#include <cmath>

namespace tavix {
namespace {

constexpr double kHalfPi = 1.5707963267948966;
constexpr double kPi = 3.141592653589793;
constexpr double kThreeHalvesPi = 4.71238898038469;
constexpr double kTwoPi = 6.283185307179586;

}  // namespace

double Azimuth(double north, double east) {
  if (std::fabs(north) < kGeometryZero) return east > 0 ? kHalfPi : kThreeHalvesPi;
  const double angle = std::atan(east / north);
  if (north < 0) return angle + kPi;
  return east >= 0 ? angle : angle + kTwoPi;
}

Inverse InverseOf(GroundPoint from, GroundPoint to) {
  const double north = to.north - from.north;
  const double east = to.east - from.east;
  const bool coincide = std::fabs(north) < kGeometryZero && std::fabs(east) < kGeometryZero;
  return {std::sqrt(east * east + north * north), coincide ? 0.0 : Azimuth(north, east)};
}

}  // namespace tavix
