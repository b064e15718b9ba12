#include "host/formats/landxml/plan_curves.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

namespace fieldhost {
namespace {

// An arc is drawn the shorter way round; well below half a circle that is unambiguous.
constexpr double kMostTurn = 150.0 * std::numbers::pi / 180.0;

double Azimuth(GroundPosition from, GroundPosition to) {
  return std::atan2(to.east - from.east, to.north - from.north);
}

GroundPosition Polar(GroundPosition centre, double radius, double azimuth) {
  return {centre.north + radius * std::cos(azimuth), centre.east + radius * std::sin(azimuth)};
}

// A clothoid is drawn by the first terms of a series, good to a millimetre up to one radian.
constexpr double kMostTangent = 1.0;

// The tangent's turn after `along` metres, in radians: the integral of the curvature.
double TangentAfter(const SpiralShape& shape, double along) {
  const double change = (shape.end_curvature - shape.start_curvature) / shape.length;
  return along * (shape.start_curvature + change * along / 2.0);
}

// The spiral from the origin, setting out northward: positions at even steps of a few degrees,
// each step integrated by Simpson's rule.
std::vector<GroundPosition> Walk(const SpiralShape& shape) {
  constexpr double kStep = 0.02;  // radians of turn
  constexpr int kFewest = 16;
  constexpr int kMost = 20000;
  const double turn = TangentAfter(shape, shape.length);
  const int count = static_cast<int>(std::clamp(turn / kStep, double{kFewest}, double{kMost}));
  const double step = shape.length / count;
  const double side = shape.rotation == Rotation::kClockwise ? 1.0 : -1.0;
  std::vector<GroundPosition> way{{0.0, 0.0}};
  for (int i = 0; i < count; ++i) {
    const double first = TangentAfter(shape, step * i);
    const double middle = TangentAfter(shape, step * (i + 0.5));
    const double last = TangentAfter(shape, step * (i + 1));
    const double north = std::cos(first) + 4.0 * std::cos(middle) + std::cos(last);
    const double east = std::sin(first) + 4.0 * std::sin(middle) + std::sin(last);
    way.push_back(
        {way.back().north + north * step / 6.0, way.back().east + side * east * step / 6.0});
  }
  return way;
}

// The walk turned and moved to the given ends.
PlanPolyline Trace(GroundPosition from, GroundPosition to, const SpiralShape& shape) {
  std::vector<GroundPosition> way = Walk(shape);
  const GroundPosition end = way.back();
  const double turn = Azimuth(from, to) - Azimuth({}, end);
  const double c = std::cos(turn);
  const double s = std::sin(turn);
  for (GroundPosition& p : way) {
    p = {from.north + c * p.north - s * p.east, from.east + s * p.north + c * p.east};
  }
  way.front() = from;
  way.back() = to;
  return {std::move(way)};
}

double RadiusOf(double curvature, double side) { return curvature == 0.0 ? 0.0 : side / curvature; }

}  // namespace

double TurnAbout(GroundPosition centre, GroundPosition from, GroundPosition to, Rotation rotation) {
  double turn = Azimuth(centre, to) - Azimuth(centre, from);
  if (rotation == Rotation::kCounterClockwise) turn = -turn;
  while (turn <= 0.0) turn += 2.0 * std::numbers::pi;
  return turn;
}

double BendAt(GroundPosition from, GroundPosition vertex, GroundPosition to) {
  return (vertex.north - from.north) * (to.east - vertex.east) -
         (vertex.east - from.east) * (to.north - vertex.north);
}

PlanElement ArcAbout(GroundPosition centre, GroundPosition from, GroundPosition to, double radius,
                     Rotation rotation, double turn) {
  const double side = rotation == Rotation::kClockwise ? 1.0 : -1.0;
  const int count = std::max(1, static_cast<int>(std::ceil(turn / kMostTurn)));
  PlanElement arcs;
  GroundPosition last = from;
  for (int i = 1; i <= count; ++i) {
    const double azimuth = Azimuth(centre, from) + side * turn * i / count;
    const GroundPosition next = i == count ? to : Polar(centre, radius, azimuth);
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
  const double azimuth = Azimuth(from, to) + (right ? 1.0 : -1.0) * std::numbers::pi / 2.0;
  const GroundPosition middle{(from.north + to.north) / 2.0, (from.east + to.east) / 2.0};
  return Polar(middle, beside, azimuth);
}

double ChordOf(const SpiralShape& shape) {
  const GroundPosition end = Walk(shape).back();
  return std::hypot(end.north, end.east);
}

PlanElement SpiralBetween(GroundPosition from, GroundPosition to, const SpiralShape& shape) {
  const double side = shape.rotation == Rotation::kClockwise ? 1.0 : -1.0;
  const double change = std::abs(shape.end_curvature - shape.start_curvature);
  const double most = std::max(shape.start_curvature, shape.end_curvature);
  if (change <= most * 1e-6) {
    const double radius = 1.0 / most;
    const double turn = shape.length * most;
    const auto centre = CentreOf(from, to, radius, shape.rotation, turn > std::numbers::pi);
    if (!centre) return {PlanStraight{from, to}};
    return ArcAbout(*centre, from, to, radius, shape.rotation,
                    TurnAbout(*centre, from, to, shape.rotation));
  }
  const double parameter = std::sqrt(shape.length / change);
  if (parameter * parameter * most * most / 2.0 > kMostTangent) {
    return {Trace(from, to, shape)};
  }
  PlanClothoid clothoid{from, to, RadiusOf(shape.start_curvature, side), parameter,
                        RadiusOf(shape.end_curvature, side)};
  // In the opposite direction a curve turns to the other side.
  if (shape.start_curvature > shape.end_curvature && shape.end_curvature > 0.0) {
    std::swap(clothoid.from, clothoid.to);
    std::swap(clothoid.start_radius, clothoid.end_radius);
    clothoid.start_radius = -clothoid.start_radius;
    clothoid.end_radius = -clothoid.end_radius;
  }
  return {clothoid};
}

}  // namespace fieldhost
