// Arcs and spirals against what they must be on the ground, worked out by other ways.
#include "host/formats/landxml/plan_curves.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "figure/curves/arc.h"
#include "figure/curves/clothoid.h"
#include "tests/figure/curves/true_curve.h"

namespace fieldhost {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr GroundPosition kCentre{6783000.0, 21530000.0};

GroundPosition OnCircle(double radius, double azimuth) {
  return {kCentre.north + radius * std::cos(azimuth), kCentre.east + radius * std::sin(azimuth)};
}

tavix::GroundPoint Of(GroundPosition p) { return {p.north, p.east}; }

// What the library draws for a piece.
std::vector<tavix::GroundPoint> Drawn(const PlanPiece& piece) {
  if (const auto* arc = std::get_if<PlanArc>(&piece)) {
    std::vector<tavix::GroundPoint> points =
        tavix::BuildArc(Of(arc->from), Of(arc->to), arc->radius);
    return points;
  }
  if (const auto* clothoid = std::get_if<PlanClothoid>(&piece)) {
    return tavix::BuildClothoid(Of(clothoid->from), Of(clothoid->to), clothoid->start_radius,
                                clothoid->parameter, clothoid->end_radius);
  }
  std::vector<tavix::GroundPoint> points;
  if (const auto* polyline = std::get_if<PlanPolyline>(&piece)) {
    for (const GroundPosition& p : polyline->vertices) points.push_back(Of(p));
  }
  return points;
}

TEST(ArcAbout, IsDrawnOnItsCircleHoweverLong) {
  constexpr double kRadius = 40.0;
  const double chord_height = kRadius * (1 - std::cos(2.5 * kPi / 180)) + 1e-6;
  for (const Rotation rotation : {Rotation::kClockwise, Rotation::kCounterClockwise}) {
    const double side = rotation == Rotation::kClockwise ? 1.0 : -1.0;
    for (const double degrees : {1.0, 30.0, 149.0, 151.0, 179.9, 180.0, 180.1, 270.0, 359.0}) {
      const double turn = degrees * kPi / 180;
      const GroundPosition from = OnCircle(kRadius, 1.0);
      const GroundPosition to = OnCircle(kRadius, 1.0 + side * turn);
      EXPECT_NEAR(TurnAbout(kCentre, from, to, rotation), turn, 1e-6) << degrees;
      std::vector<std::vector<tavix::GroundPoint>> drawn;
      for (const PlanPiece& piece : ArcAbout(kCentre, from, to, kRadius, rotation, turn)) {
        drawn.push_back(Drawn(piece));
        ASSERT_GE(drawn.back().size(), 2U) << degrees;
      }
      // All along the true arc the drawing is near, and nowhere is it off the circle.
      for (int i = 0; i <= 200; ++i) {
        const GroundPosition p = OnCircle(kRadius, 1.0 + side * turn * i / 200);
        double nearest = 1e9;
        for (const auto& chain : drawn) {
          nearest = std::min(nearest, tavix::test::DistanceTo(chain, Of(p)));
        }
        EXPECT_LE(nearest, chord_height) << degrees << " degrees, at " << i;
      }
      for (const auto& chain : drawn) {
        for (const tavix::GroundPoint p : chain) {
          EXPECT_NEAR(kRadius, std::hypot(p.north - kCentre.north, p.east - kCentre.east), 1e-6);
          const double past = TurnAbout(kCentre, from, {p.north, p.east}, rotation);
          EXPECT_TRUE(past <= turn + 1e-6 || past >= 2 * kPi - 1e-6) << degrees << ' ' << past;
        }
      }
    }
  }
}

TEST(TurnAbout, IsAFullCircleBackToTheStart) {
  const GroundPosition from = OnCircle(5.0, 0.3);
  EXPECT_NEAR(2 * kPi, TurnAbout(kCentre, from, from, Rotation::kClockwise), 1e-9);
  EXPECT_NEAR(2 * kPi, TurnAbout(kCentre, from, from, Rotation::kCounterClockwise), 1e-9);
  EXPECT_EQ(3U, ArcAbout(kCentre, from, from, 5.0, Rotation::kClockwise, 2 * kPi).size());
}

TEST(CentreOf, LiesOnTheSideTheArcTurnsTo) {
  const GroundPosition west{0.0, 0.0};
  const GroundPosition east{0.0, 6.0};
  const struct {
    Rotation rotation;
    bool is_long;
    double north;
  } rows[] = {
      {Rotation::kClockwise, false, -4.0},  // travelling east, the right is south
      {Rotation::kClockwise, true, 4.0},
      {Rotation::kCounterClockwise, false, 4.0},
      {Rotation::kCounterClockwise, true, -4.0},
  };
  for (const auto& row : rows) {
    const auto centre = CentreOf(west, east, 5.0, row.rotation, row.is_long);
    ASSERT_TRUE(centre);
    EXPECT_NEAR(row.north, centre->north, 1e-9);
    EXPECT_NEAR(3.0, centre->east, 1e-9);
  }
  EXPECT_TRUE(CentreOf(west, east, 3.0, Rotation::kClockwise, false));
  EXPECT_FALSE(CentreOf(west, east, 2.9, Rotation::kClockwise, false));
  EXPECT_FALSE(CentreOf(west, west, 2.9, Rotation::kClockwise, false));
}

// A spiral that sets out from the centre in a direction, by fine steps along it.
std::vector<tavix::GroundPoint> TrueSpiral(const SpiralShape& shape, double azimuth) {
  constexpr int kSteps = 20000;
  const double side = shape.rotation == Rotation::kClockwise ? 1.0 : -1.0;
  const double step = shape.length / kSteps;
  const double change = (shape.end_curvature - shape.start_curvature) / shape.length;
  std::vector<tavix::GroundPoint> way{Of(kCentre)};
  for (int i = 0; i < kSteps; ++i) {
    const double s = (i + 0.5) * step;
    const double direction = azimuth + side * (shape.start_curvature * s + change * s * s / 2);
    way.push_back({way.back().north + step * std::cos(direction),
                   way.back().east + step * std::sin(direction)});
  }
  return way;
}

GroundPosition EndOf(const std::vector<tavix::GroundPoint>& way) {
  return {way.back().north, way.back().east};
}

double LongestChord(const std::vector<tavix::GroundPoint>& chain) {
  double longest = 0.0;
  for (std::size_t i = 1; i < chain.size(); ++i) {
    longest = std::max(longest, std::hypot(chain[i].north - chain[i - 1].north,
                                           chain[i].east - chain[i - 1].east));
  }
  return longest;
}

TEST(SpiralBetween, IsDrawnAlongTheCurve) {
  constexpr auto kRight = Rotation::kClockwise;
  constexpr auto kLeft = Rotation::kCounterClockwise;
  const struct {
    const char* what;
    SpiralShape shape;
  } rows[] = {
      {"from straight to the right", {0.0, 1 / 250.0, 62.5, kRight}},
      {"from straight to the left", {0.0, 1 / 250.0, 62.5, kLeft}},
      {"to straight from the right", {1 / 60.0, 0.0, 41.0, kRight}},
      {"to straight from the left", {1 / 60.0, 0.0, 41.0, kLeft}},
      {"egg that tightens to the right", {1 / 101.8, 1 / 56.6, 29.5, kRight}},
      {"egg that tightens to the left", {1 / 101.8, 1 / 56.6, 29.5, kLeft}},
      {"egg that widens to the right", {1 / 56.6, 1 / 101.8, 29.5, kRight}},
      {"egg that widens to the left", {1 / 56.6, 1 / 101.8, 29.5, kLeft}},
      {"further than a series reaches", {0.0, 1 / 20.0, 120.0, kLeft}},
      {"and back to straight", {1 / 20.0, 0.0, 120.0, kRight}},
      {"almost all the way round", {1 / 30.0, 1 / 10.0, 90.0, kRight}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    const std::vector<tavix::GroundPoint> way = TrueSpiral(row.shape, 0.7);
    const GroundPosition end = EndOf(way);
    EXPECT_NEAR(ChordOf(row.shape), Distance(kCentre, end), 0.001);
    const PlanElement pieces = SpiralBetween(kCentre, end, row.shape);
    ASSERT_EQ(1U, pieces.size());
    const std::vector<tavix::GroundPoint> drawn = Drawn(pieces[0]);
    ASSERT_GT(drawn.size(), 5U);
    // Each vertex lies on the curve, and the curve no further from a chord than a bend of two
    // degrees rises above it.
    for (const tavix::GroundPoint p : drawn) {
      EXPECT_LE(tavix::test::DistanceTo(way, p), 0.003);
    }
    const double height = LongestChord(drawn) * (2.0 * kPi / 180) / 8 + 0.003;
    for (std::size_t i = 0; i < way.size(); i += 500) {
      EXPECT_LE(tavix::test::DistanceTo(drawn, way[i]), height) << i;
    }
  }
}

TEST(SpiralBetween, OfOneRadiusIsAnArc) {
  const SpiralShape shape{1 / 50.0, 1 / 50.0, 30.0, Rotation::kCounterClockwise};
  const GroundPosition end = EndOf(TrueSpiral(shape, 0.2));
  const PlanElement pieces = SpiralBetween(kCentre, end, shape);
  ASSERT_EQ(1U, pieces.size());
  ASSERT_TRUE(std::holds_alternative<PlanArc>(pieces[0]));
  EXPECT_NEAR(-50.0, std::get<PlanArc>(pieces[0]).radius, 1e-9);
}

TEST(BendAt, IsAboveZeroToTheRight) {
  EXPECT_GT(BendAt({0, 0}, {1, 0}, {1, 1}), 0.0);  // north, then east
  EXPECT_LT(BendAt({0, 0}, {1, 0}, {1, -1}), 0.0);
  EXPECT_EQ(0.0, BendAt({0, 0}, {1, 0}, {2, 0}));
}

}  // namespace
}  // namespace fieldhost
