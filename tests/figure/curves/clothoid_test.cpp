#include "figure/curves/clothoid.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/figure/curves/same_point.h"
#include "tests/figure/curves/true_curve.h"
#include "tests/support/case_file.h"

namespace tavix {
namespace {

using test::Case;

constexpr double kDegree = 0.017453292519943295;

double DistanceOf(GroundPoint a, GroundPoint b) {
  return std::hypot(a.north - b.north, a.east - b.east);
}

void PointCase(const Case& given) {
  const GroundPoint point = ClothoidPoint(given.Number("tau"), given.Number("A"));
  given.Expect({point.north, point.east});
}

struct Built {
  GroundPoint start;
  GroundPoint end;
  double a;
  double r1;
  double r2;
  Polyline curve;
};

Built BuildCase(const Case& given) {
  Built built{given.Ground("start"), given.Ground("end"), given.Number("A"),
              given.Number("R1"),    given.Number("R2"),  {}};
  built.curve = BuildClothoid(built.start, built.end, built.r1, built.a, built.r2);
  return built;
}

void ExpectTheOtherWayRound(const Case& given, const Built& built) {
  if (!given.HasBack()) return;
  const Polyline other = BuildClothoid(built.end, built.start, -built.r2, built.a, -built.r1);
  ASSERT_EQ(built.curve.size(), other.size());
  for (std::size_t i = 0; i < other.size(); ++i) {
    given.ExpectBack({other[i].north, other[i].east}, {built.curve[i].north, built.curve[i].east});
  }
}

void CurveCase(const Case& given) {
  const Built built = BuildCase(given);
  given.Expect({static_cast<double>(built.curve.size())});
  ASSERT_FALSE(built.curve.empty());
  EXPECT_EQ(built.start, built.curve.front());
  EXPECT_EQ(built.end, built.curve.back());
  for (std::size_t i = 1; i + 1 < built.curve.size(); ++i) {
    const GroundPoint local = test::IntegratedClothoid(kDegree * static_cast<double>(i), built.a);
    const GroundPoint expected{built.start.north + local.north,
                               built.start.east + (built.r2 < 0 ? -local.east : local.east)};
    EXPECT_NEAR(0, DistanceOf(built.curve[i], expected), given.Tolerance()) << "point " << i;
  }
  ExpectTheOtherWayRound(given, built);
}

void ClothoidCase(const Case& given) {
  const Built built = BuildCase(given);
  ASSERT_FALSE(built.curve.empty());
  const bool reversed = built.curve.front() == built.end;
  given.Expect({static_cast<double>(built.curve.size())}, reversed ? "reversed" : "");
  EXPECT_EQ(reversed ? built.end : built.start, built.curve.front());
  EXPECT_EQ(reversed ? built.start : built.end, built.curve.back());
  ExpectTheOtherWayRound(given, built);
}

TEST(Clothoid, KeepsToItsCases) {
  test::RunCaseFile("clothoid.txt",
                    {{"point", PointCase}, {"curve", CurveCase}, {"clothoid", ClothoidCase}});
}

TEST(BuildClothoid, KeepsToTheSideOfItsSecondRadius) {
  const Polyline right = BuildClothoid({0, 0}, {35, 0}, 160, 200, 140);
  const Polyline left = BuildClothoid({0, 0}, {35, 0}, -160, 200, -140);
  ASSERT_EQ(right.size(), left.size());
  ASSERT_GT(right.size(), 2U);
  for (std::size_t i = 1; i + 1 < right.size(); ++i) {
    EXPECT_LT(right[i].east, 0) << i;  // bending to the right, it bulges to the left
    EXPECT_NEAR(left[i].north, right[i].north, 1e-9);
    EXPECT_NEAR(left[i].east, -right[i].east, 1e-9);
  }
}

// The end is given as it is, however far the parameters stay away from it.
TEST(BuildClothoid, TrustsItsEnds) {
  const GroundPoint far_end{5000, 5000};
  const Polyline curve = BuildClothoid({1, 2}, far_end, 0, 150, 200);
  ASSERT_GT(curve.size(), 2U);
  EXPECT_EQ((GroundPoint{1, 2}), curve.front());
  EXPECT_EQ(curve.back(), far_end);
  EXPECT_LT(DistanceOf(curve[curve.size() - 2], curve.front()), 113);
}

TEST(BuildClothoid, NumbersOutOfAllProportionEnd) {
  const double numbers[] = {0, 1e-300, 1e-4, 1, -1, 1e100, 1e300};
  for (const double r1 : numbers) {
    for (const double a : numbers) {
      for (const double r2 : numbers) {
        for (const GroundPoint end : {GroundPoint{10, 10}, {1e300, -1e300}, {-1.7e308, 1.7e308}}) {
          for (const GroundPoint point : BuildClothoid({1.7e308, -1.7e308}, end, r1, a, r2)) {
            EXPECT_TRUE(std::isfinite(point.north) && std::isfinite(point.east)) << r1 << a << r2;
          }
        }
      }
    }
  }
}

TEST(BuildClothoid, IsEmptyForANumberThatIsNotFinite) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  for (const double number : {kInfinity, -kInfinity, kNone}) {
    EXPECT_TRUE(BuildClothoid({number, 0}, {10, 10}, 0, 150, 200).empty());
    EXPECT_TRUE(BuildClothoid({0, number}, {10, 10}, 0, 150, 200).empty());
    EXPECT_TRUE(BuildClothoid({0, 0}, {number, 10}, 0, 150, 200).empty());
    EXPECT_TRUE(BuildClothoid({0, 0}, {10, number}, 0, 150, 200).empty());
    EXPECT_TRUE(BuildClothoid({0, 0}, {10, 10}, number, 150, 200).empty());
    EXPECT_TRUE(BuildClothoid({0, 0}, {10, 10}, 0, number, 200).empty());
    EXPECT_TRUE(BuildClothoid({0, 0}, {10, 10}, 0, 150, number).empty());
  }
  EXPECT_TRUE(BuildClothoid({0, 0}, {10, 10}, 0, 1e200, 1e10).empty());  // its tangent's angle is
}

// However far it turns: its points are those of the series, which far out leaves the true curve.
TEST(BuildClothoid, TurnsAsFarAsItsRadiusAsksFor) {
  constexpr double kA = 100;
  const double tau = kA * kA / 2;  // 5000 radians, nearly eight hundred turns
  const Polyline curve = BuildClothoid({0, 0}, {10, 10}, 0, kA, 1);
  ASSERT_EQ(curve.size(), 2 + static_cast<std::size_t>(tau / kDegree));
  for (std::size_t i = 1000; i + 1 < curve.size(); i += 1000) {
    const double t = kDegree * static_cast<double>(i);
    const double length = std::sqrt(2 * t) * kA;
    const double x = 1 - t * t / 10 + std::pow(t, 4) / 216 - std::pow(t, 6) / 9360;
    const double y = 1.0 / 3 - t * t / 42 + std::pow(t, 4) / 1320 - std::pow(t, 6) / 75600;
    const double distance = length * std::hypot(x, t * y);
    EXPECT_NEAR(1, DistanceOf(curve[i], curve[0]) / distance, 1e-7) << i;
  }
}

TEST(BuildClothoid, HasAtMostTenMillionPoints) {
  constexpr double kMost = 1e7;
  // The parameter that turns through so many degrees up to a radius of 1 m.
  const auto a = [](double degrees) { return std::sqrt(2 * degrees * kDegree); };
  EXPECT_EQ(kMost, BuildClothoid({0, 0}, {10, 10}, 0, a(kMost - 1.5), 1).size());
  EXPECT_TRUE(BuildClothoid({0, 0}, {10, 10}, 0, a(kMost - 0.5), 1).empty());
  EXPECT_TRUE(BuildClothoid({0, 0}, {10, 10}, 0, 1e100, 1).empty());
}

}  // namespace
}  // namespace tavix
