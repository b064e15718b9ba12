#include "figure/curves/clothoid.h"

#include <cmath>
#include <utility>

#include "figure/curves/azimuth.h"

namespace tavix {
namespace {

constexpr double kStep = 0.017453292519943295;  // 1 degree
constexpr double kMostPoints = 1e7;

// tau = A^2 / 2 R^2 is the tangent's angle at radius R, measured from the straight end. A straight
// end itself has R = 0 here, and then an angle that is practically 0.
double TangentAngle(double a, double r) {
  const double twice_r_squared = 2 * (r * r);
  return twice_r_squared > kGeometryZero ? a * a / twice_r_squared : twice_r_squared;
}

// Rotates local coordinates by `angle` and shifts them, so that `local` lies on `ground`.
class Placement {
 public:
  Placement(double angle, GroundPoint local, GroundPoint ground)
      : cos_(std::cos(angle)), sin_(std::sin(angle)) {
    const GroundPoint rotated = Rotate(local);
    shift_ = {ground.north - rotated.north, ground.east - rotated.east};
  }

  [[nodiscard]] GroundPoint ToGround(GroundPoint local) const {
    const GroundPoint rotated = Rotate(local);
    return {rotated.north + shift_.north, rotated.east + shift_.east};
  }

 private:
  [[nodiscard]] GroundPoint Rotate(GroundPoint p) const {
    return {cos_ * p.north - sin_ * p.east, sin_ * p.north + cos_ * p.east};
  }

  double cos_;
  double sin_;
  GroundPoint shift_;
};

template <class... Numbers>
bool AreFinite(Numbers... numbers) {
  return (std::isfinite(numbers) && ...);
}

bool StartsAtTheWrongEnd(double r1, double r2) {
  const bool one_end_is_straight = std::fabs(r1 * r2) < kGeometryZero;
  return one_end_is_straight && (std::fabs(r2) < kGeometryZero || std::fabs(r2) < std::fabs(r1));
}

}  // namespace

// The power series of the Fresnel integrals, X to the north and Y to the east:
//   X = L (1 - tau^2/10 + tau^4/216 - tau^6/9360)
//   Y = L tau (1/3 - tau^2/42 + tau^4/1320 - tau^6/75600)
//   L = A sqrt(2 tau)
// It ends early once a term of X falls below 1e-5.
GroundPoint ClothoidPoint(double tau, double a) {
  constexpr int kMostTerms = 4;
  constexpr double kSmallTerm = 1e-5;
  const double length = std::sqrt(2 * tau) * a;
  double x = 0.0;
  double y = 0.0;
  double power = 1.0;      // tau^2k
  double factorial = 1.0;  // (2k)!
  for (int k = 0; k < kMostTerms; ++k) {
    const double sign = k % 2 == 0 ? 1.0 : -1.0;
    const double x_term = power / ((4 * k + 1) * factorial);
    const double y_term = power / ((4 * k + 3) * (factorial * (2 * k + 1)));
    x += sign * x_term;
    y += sign * y_term;
    if (x_term < kSmallTerm) break;
    power *= tau * tau;
    factorial *= (2 * k + 1) * (2 * k + 2);
  }
  return {length * x, length * tau * y};
}

Polyline BuildClothoid(GroundPoint start, GroundPoint end, double r1, double a, double r2) {
  if (!AreFinite(start.north, start.east, end.north, end.east, r1, a, r2)) return {};
  if (StartsAtTheWrongEnd(r1, r2)) {
    std::swap(start, end);
    std::swap(r1, r2);
    r1 = -r1;
    r2 = -r2;
  }
  const double tau1 = TangentAngle(a, r1);
  const double tau2 = TangentAngle(a, r2);
  const double steps = (tau2 - tau1) / kStep;  // NaN where both angles overflow
  if (!(steps <= kMostPoints - 1)) return {};

  const double side = r2 < 0 ? -1.0 : 1.0;
  const auto local = [=](double tau) {
    const GroundPoint point = ClothoidPoint(tau, a);
    return GroundPoint{point.north, side * point.east};
  };
  const GroundPoint first = local(tau1);
  const double rotation = InverseOf(start, end).azimuth - InverseOf(first, local(tau2)).azimuth;
  const Placement placement(rotation, first, start);

  Polyline points{start};
  if (steps > 1) points.reserve(static_cast<std::size_t>(steps) + 2);
  for (int k = 1;; ++k) {
    const double tau = tau1 + k * kStep;
    if (!(tau < tau2)) break;
    const GroundPoint point = placement.ToGround(local(tau));
    if (!AreFinite(point.north, point.east)) return {};
    points.push_back(point);
  }
  points.push_back(end);
  return points;
}

}  // namespace tavix
