#include <algorithm>
#include <cmath>
#include <numbers>

#include "host/formats/landxml/plan_curves.h"

namespace fieldhost {
namespace {

// An arc is drawn the shorter way round; well below half a circle there is no doubt which that is.
constexpr double kMostTurn = 150.0 * std::numbers::pi / 180.0;

double Bearing(GroundPosition from, GroundPosition to) {
  return std::atan2(to.east - from.east, to.north - from.north);
}

GroundPosition Polar(GroundPosition centre, double radius, double bearing) {
  return {centre.north + radius * std::cos(bearing), centre.east + radius * std::sin(bearing)};
}

}  // namespace

double TurnAbout(GroundPosition centre, GroundPosition from, GroundPosition to, Rotation rotation) {
  double turn = Bearing(centre, to) - Bearing(centre, from);
  if (rotation == Rotation::kCounterClockwise) turn = -turn;
  while (turn <= 0.0) turn += 2.0 * std::numbers::pi;
  while (turn > 2.0 * std::numbers::pi) turn -= 2.0 * std::numbers::pi;
  return turn;
}

double BendAt(GroundPosition from, GroundPosition corner, GroundPosition to) {
  return (corner.north - from.north) * (to.east - corner.east) -
         (corner.east - from.east) * (to.north - corner.north);
}

PlanElement ArcAbout(GroundPosition centre, GroundPosition from, GroundPosition to, double radius,
                     Rotation rotation, double turn) {
  const double side = rotation == Rotation::kClockwise ? 1.0 : -1.0;
  const int count = std::max(1, static_cast<int>(std::ceil(turn / kMostTurn)));
  PlanElement arcs;
  GroundPosition last = from;
  for (int i = 1; i <= count; ++i) {
    const double bearing = Bearing(centre, from) + side * turn * i / count;
    const GroundPosition next = i == count ? to : Polar(centre, radius, bearing);
    arcs.emplace_back(PlanArc{last, next, side * radius});
    last = next;
  }
  return arcs;
}

// The centre lies beside the middle of the chord: to the right of the way for a short arc that
// turns clockwise, and a long one turns about the other side.
std::optional<GroundPosition> CentreOf(GroundPosition from, GroundPosition to, double radius,
                                       Rotation rotation, bool is_long) {
  constexpr double kReach = 1.0 + 1e-9;  // half a circle reaches exactly, but for rounding
  const double chord = Distance(from, to);
  if (chord <= 0.0 || chord > 2.0 * radius * kReach) return std::nullopt;
  const double beside = std::sqrt(std::max(0.0, radius * radius - chord * chord / 4.0));
  const bool right = (rotation == Rotation::kClockwise) != is_long;
  const double bearing = Bearing(from, to) + (right ? 1.0 : -1.0) * std::numbers::pi / 2.0;
  const GroundPosition middle{(from.north + to.north) / 2.0, (from.east + to.east) / 2.0};
  return Polar(middle, beside, bearing);
}

}  // namespace fieldhost
