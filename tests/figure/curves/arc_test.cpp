#include "figure/curves/arc.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "figure/curves/azimuth.h"
#include "tests/figure/curves/same_point.h"
#include "tests/support/case_file.h"

namespace tavix {
namespace {

using test::Case;

constexpr double kDegree = 3.141592653589793 / 180;

double DistanceOf(GroundPoint a, GroundPoint b) {
  return std::hypot(a.north - b.north, a.east - b.east);
}

GroundPoint OnCircle(GroundPoint centre, double r, double degrees) {
  return {centre.north + r * std::cos(degrees * kDegree),
          centre.east + r * std::sin(degrees * kDegree)};
}

void InverseCase(const Case& given) {
  const GroundPoint from = given.Ground("from");
  const GroundPoint to = given.Ground("to");
  const Inverse inverse = InverseOf(from, to);
  given.Expect({inverse.distance, inverse.azimuth / kDegree});
  given.ExpectBack({from.north + inverse.distance * std::cos(inverse.azimuth),
                    from.east + inverse.distance * std::sin(inverse.azimuth)},
                   {to.north, to.east});
}

void CentreCase(const Case& given) {
  const GroundPoint p = given.Ground("p");
  const GroundPoint q = given.Ground("q");
  const double r1 = given.Number("r1");
  const double r2 = given.Number("r2");
  const auto centre = TwoCircleCentre(p, r1, q, r2);
  if (!centre) return given.Expect({}, "none");
  given.Expect({centre->north, centre->east});
  given.ExpectBack({DistanceOf(*centre, p), DistanceOf(*centre, q)},
                   {std::fabs(r1), std::fabs(r2)});
}

void ArcCase(const Case& given) {
  const GroundPoint centre = given.Ground("centre");
  const double radius = given.Number("radius");
  const double from = given.Number("from");
  const GroundPoint start = OnCircle(centre, radius, from);
  const GroundPoint end = OnCircle(centre, radius, given.Number("to"));
  const Polyline arc = BuildArc(start, end, radius);
  ASSERT_GE(arc.size(), 2U);
  EXPECT_EQ(start, arc.front());
  EXPECT_EQ(end, arc.back());
  for (std::size_t i = 1; i + 1 < arc.size(); ++i) {
    const GroundPoint expected = OnCircle(centre, radius, from + 5 * static_cast<double>(i));
    EXPECT_NEAR(0, DistanceOf(arc[i], expected), given.Tolerance()) << "point " << i;
  }
  given.Expect({static_cast<double>(arc.size())});
  const auto back = TwoCircleCentre(start, radius, end, radius);
  ASSERT_TRUE(back);
  given.ExpectBack({back->north, back->east}, {centre.north, centre.east});
}

void ChordCase(const Case& given) {
  const Polyline arc = BuildArc(given.Ground("start"), given.Ground("end"), given.Number("radius"));
  if (arc.empty()) return given.Expect({}, "none");
  given.Expect({static_cast<double>(arc.size())});
}

TEST(Arc, KeepsToItsCases) {
  test::RunCaseFile(
      "arc.txt",
      {{"inverse", InverseCase}, {"centre", CentreCase}, {"arc", ArcCase}, {"chord", ChordCase}});
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
  ASSERT_GE(arc.size(), 37U);  // 35 or 36 points between, depending on the last bit of the angles
  ASSERT_LE(arc.size(), 38U);
  for (const GroundPoint p : arc) EXPECT_NEAR(50, DistanceOf(p, {50, 0}), 1e-9);
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
