#include "figure/curves/arc.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "tests/figure/curves/same_point.h"

namespace tavix {
namespace {

constexpr double kDegree = 3.141592653589793 / 180;

double DistanceOf(GroundPoint a, GroundPoint b) {
  return std::hypot(a.north - b.north, a.east - b.east);
}

GroundPoint OnCircle(GroundPoint centre, double r, double degrees) {
  return {centre.north + r * std::cos(degrees * kDegree),
          centre.east + r * std::sin(degrees * kDegree)};
}

TEST(TwoCircleCentre, LiesOnTheRightOfTheWay) {
  const struct {
    GroundPoint p;
    double r1;
    GroundPoint q;
    double r2;
    GroundPoint centre;
  } rows[] = {{{0, 0}, 5, {6, 0}, 5, {3, 4}},
              {{6, 0}, 5, {0, 0}, 5, {3, -4}},
              {{0, 0}, 5, {0, 6}, 5, {-4, 3}},
              {{0, 0}, -5, {6, 0}, 5, {3, 4}},  // only the magnitudes count
              {{0, 0}, -5, {6, 0}, -5, {3, 4}},
              {{0, 0}, 3, {5, 0}, 4, {1.8, 2.4}},
              {{0, 0}, 4, {5, 0}, 3, {3.2, 2.4}},
              {{100, 200}, 13, {110, 200}, 13, {105, 212}},
              {{0, 0}, 5, {10, 0}, 5, {5, 0}}};  // they touch
  for (const auto& row : rows) {
    const auto centre = TwoCircleCentre(row.p, row.r1, row.q, row.r2);
    ASSERT_TRUE(centre) << row.q.north << ' ' << row.q.east;
    EXPECT_NEAR(row.centre.north, centre->north, 1e-12);
    EXPECT_NEAR(row.centre.east, centre->east, 1e-12);
  }
}

TEST(TwoCircleCentre, FailsWherePointsCoincideOrLieTooFarApart) {
  const struct {
    GroundPoint q;
    double r1;
    double r2;
    bool found;
  } rows[] = {{{0, 0}, 5, 5, false},     {{9e-8, 9e-8}, 5, 5, false}, {{9e-8, -9e-8}, 5, 5, false},
              {{1.1e-7, 0}, 5, 5, true},  // one part above the tolerance is enough
              {{0, 1.1e-7}, 5, 5, true}, {{10.001, 0}, 5, 5, false},  {{9.999, 0}, 5, 5, true},
              {{10, 0}, 0, 0, false},    {{0, 8}, 3, -4, false}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.found, TwoCircleCentre({0, 0}, row.r1, row.q, row.r2).has_value())
        << row.q.north << ' ' << row.q.east;
  }
}

TEST(BuildArc, HasAPointEveryFiveDegreesBetweenItsEnds) {
  const GroundPoint centre{1000, 2000};
  const struct {
    double from;
    double to;
    std::size_t points;
  } rows[] = {{10, 14, 2},      {10, 14.9, 2},   {10, 15.1, 3},  {0.5, 90, 19},
              {200, 300.5, 22}, {350, 372.5, 6}, {270, 449, 37}, {170, 190.5, 6}};
  for (const auto& row : rows) {
    const GroundPoint start = OnCircle(centre, 80, row.from);
    const GroundPoint end = OnCircle(centre, 80, row.to);
    const Polyline arc = BuildArc(start, end, 80);
    ASSERT_EQ(row.points, arc.size()) << row.from << " to " << row.to;
    EXPECT_EQ(arc.front(), start);
    EXPECT_EQ(arc.back(), end);
    for (std::size_t i = 1; i + 1 < arc.size(); ++i) {
      const GroundPoint expected = OnCircle(centre, 80, row.from + 5 * static_cast<double>(i));
      EXPECT_NEAR(0, DistanceOf(arc[i], expected), 1e-9) << row.from << " point " << i;
    }
  }
}

TEST(BuildArc, ANegativeRadiusSwapsTheEnds) {
  const GroundPoint a{10, 20};
  const GroundPoint b{70, 55};
  const Polyline there = BuildArc(a, b, -50);
  EXPECT_EQ(there, BuildArc(b, a, 50));
  ASSERT_GT(there.size(), 2U);
  EXPECT_EQ(there.front(), b);
  EXPECT_EQ(there.back(), a);
  // The two signs bulge to different sides of the chord.
  EXPECT_NE(there[1], BuildArc(a, b, 50)[there.size() - 2]);
}

TEST(BuildArc, IsTheShorterOne) {
  for (const double chord : {1.0, 50.0, 99.0, 99.999}) {
    const Polyline arc = BuildArc({0, 0}, {chord, 0}, 50);
    double length = 0;
    for (std::size_t i = 1; i < arc.size(); ++i) length += DistanceOf(arc[i - 1], arc[i]);
    EXPECT_LE(length, 50 * 180 * kDegree) << chord;
    EXPECT_GE(length, chord - 1e-9);
    // The centre is east of the chord, so the clockwise arc passes west of it.
    EXPECT_TRUE(std::all_of(arc.begin(), arc.end(), [](GroundPoint p) { return p.east <= 1e-9; }));
  }
}

TEST(BuildArc, AHalfCircleIsStillAnArc) {
  const Polyline arc = BuildArc({0, 0}, {100, 0}, 50);
  ASSERT_GE(arc.size(), 37U);  // 35 or 36 points between, as the last bit of the angles has it
  ASSERT_LE(arc.size(), 38U);
  for (const GroundPoint p : arc) EXPECT_NEAR(50, DistanceOf(p, {50, 0}), 1e-9);
}

TEST(BuildArc, IsEmptyWhereThereIsNone) {
  const struct {
    GroundPoint end;
    double r;
  } rows[] = {{{100.001, 0}, 50}, {{100.001, 0}, -50}, {{10, 10}, 0},
              {{0, 0}, 50},       {{0, 0}, -50},       {{9e-8, 9e-8}, 50}};
  for (const auto& row : rows) EXPECT_TRUE(BuildArc({0, 0}, row.end, row.r).empty()) << row.r;
}

TEST(BuildArc, NumbersOutOfAllProportionEnd) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  const double radii[] = {1e300, -1e300, kInfinity, -kInfinity, kNone, 1e-300};
  const GroundPoint ends[] = {{1, 1}, {1e300, 0}, {kInfinity, 0}, {kNone, kNone}};
  for (const double r : radii) {
    for (const GroundPoint end : ends) EXPECT_LE(BuildArc({0, 0}, end, r).size(), 74U);
  }
}

}  // namespace
}  // namespace tavix
