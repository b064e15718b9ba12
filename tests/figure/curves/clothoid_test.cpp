#include "figure/curves/clothoid.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/figure/curves/same_point.h"
#include "tests/figure/curves/true_curve.h"

namespace tavix {
namespace {

constexpr double kDegree = 0.017453292519943295;

double DistanceOf(GroundPoint a, GroundPoint b) {
  return std::hypot(a.north - b.north, a.east - b.east);
}

TEST(ClothoidPoint, BeginsAtItsOrigin) { EXPECT_EQ((GroundPoint{0, 0}), ClothoidPoint(0, 100)); }

TEST(ClothoidPoint, FollowsTheIntegral) {
  const struct {
    double tau;
    double tolerance;
  } rows[] = {{1e-6, 1e-7}, {0.01, 1e-6}, {0.1, 1e-6}, {0.2, 1e-5}, {0.5, 1e-5}, {0.9, 1e-3}};
  for (const auto& row : rows) {
    const GroundPoint point = ClothoidPoint(row.tau, 100);
    EXPECT_NEAR(0, DistanceOf(point, test::IntegratedClothoid(row.tau, 100)), row.tolerance)
        << row.tau;
  }
}

// Four rounds at most, and none after the first whose term of X is below 1e-5.
TEST(ClothoidPoint, SumsAsManyTermsAsTheirSizeAsksFor) {
  const struct {
    double tau;
    int rounds;
  } rows[] = {{0.009, 2}, {0.0101, 3}, {0.2, 3}, {0.2155, 3}, {0.216, 4}, {1, 4}, {3, 4}};
  for (const auto& row : rows) {
    const double t2 = row.tau * row.tau;
    const double x_terms[] = {1, -t2 / 10, t2 * t2 / 216, -t2 * t2 * t2 / 9360};
    const double y_terms[] = {1.0 / 3, -t2 / 42, t2 * t2 / 1320, -t2 * t2 * t2 / 75600};
    double x = 0;
    double y = 0;
    for (int i = 0; i < row.rounds; ++i) {
      x += x_terms[i];
      y += y_terms[i];
    }
    const double length = std::sqrt(2 * row.tau);
    const GroundPoint point = ClothoidPoint(row.tau, 1);
    EXPECT_NEAR(point.north, length * x, 1e-15 * length) << row.tau;
    EXPECT_NEAR(point.east, length * row.tau * y, 1e-15 * length) << row.tau;
  }
}

// tau is A^2 / 2 R^2; every whole degree below it gives a point.
TEST(BuildClothoid, HasAPointEveryDegreeOfItsTangent) {
  const double a = 150;
  for (const double r : {200.0, -200.0, 500.0, -3000.0}) {
    const double tau = a * a / (2 * r * r);
    const GroundPoint local = test::IntegratedClothoid(tau, a);
    const GroundPoint end{1000 + local.north, 2000 + (r < 0 ? -local.east : local.east)};
    const Polyline curve = BuildClothoid({1000, 2000}, end, 0, a, r);
    ASSERT_EQ(curve.size(), 2 + static_cast<std::size_t>(tau / kDegree)) << r;
    EXPECT_EQ((GroundPoint{1000, 2000}), curve.front());
    EXPECT_EQ(curve.back(), end);
    for (std::size_t i = 1; i + 1 < curve.size(); ++i) {
      const GroundPoint expected = test::IntegratedClothoid(kDegree * static_cast<double>(i), a);
      const GroundPoint on_map{1000 + expected.north,
                               2000 + (r < 0 ? -expected.east : expected.east)};
      EXPECT_NEAR(0, DistanceOf(curve[i], on_map), 1e-4) << r << " point " << i;
    }
  }
}

TEST(BuildClothoid, IsBuiltFromItsStraightEnd) {
  const GroundPoint start{0, 0};
  const GroundPoint end{100, 8};
  EXPECT_EQ(BuildClothoid(start, end, 0, 150, 200).front(), start);
  EXPECT_EQ(BuildClothoid(start, end, 200, 150, 0).front(), end);
  EXPECT_EQ(BuildClothoid(start, end, 200, 150, 0), BuildClothoid(end, start, 0, 150, -200));
  EXPECT_EQ(BuildClothoid(start, end, -200, 150, 0), BuildClothoid(end, start, 0, 150, 200));
  // A radius whose product with the other is below the tolerance is a straight end, too.
  EXPECT_EQ(BuildClothoid(start, end, 200, 150, 1e-10).front(), end);
  EXPECT_EQ(BuildClothoid(start, end, 1e-10, 150, 200).front(), start);
}

TEST(BuildClothoid, BetweenTwoRadiiTheSecondMustBeTheSmaller) {
  const GroundPoint start{0, 0};
  const GroundPoint end{35, 5};
  const Polyline ends{start, end};
  EXPECT_EQ(BuildClothoid(start, end, 140, 200, 160), ends);
  EXPECT_EQ(BuildClothoid(start, end, -140, 200, -160), ends);
  EXPECT_EQ(BuildClothoid(start, end, 150, 200, 150), ends);
  const double turn = 200 * 200 / 2.0 * (1 / (140.0 * 140) - 1 / (160.0 * 160));
  EXPECT_EQ(BuildClothoid(start, end, 160, 200, 140).size(),
            2 + static_cast<std::size_t>(turn / kDegree));
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

TEST(BuildClothoid, TwoStraightEndsAreAStraightLine) {
  const GroundPoint start{3, 4};
  const GroundPoint end{50, 60};
  EXPECT_EQ((Polyline{end, start}), BuildClothoid(start, end, 0, 150, 0));
  EXPECT_EQ((Polyline{start, end}), BuildClothoid(start, end, 0, 0, 100));  // A of 0: no turn
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
