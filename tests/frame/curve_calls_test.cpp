// Arcs and clothoids as they reach the figure file: which way they turn, and through which points.
#include <tavix/tavix.h>

#include <bit>
#include <cmath>
#include <vector>

#include "tests/support/figure_bytes.h"
#include "tests/support/legend_bytes.h"
#include "tests/support/plot_test.h"

namespace tavix::test {
namespace {

class CurveCalls : public LibraryTest {
 protected:
  void SetUp() override {
    ASSERT_EQ(0, Tavix_Crt());
    ASSERT_EQ(0, Tavix_FigStt(1, 101));
  }

  // The points of all figures, in the order of the file.
  static std::vector<Ground> Points() {
    const std::string bytes = ReadBytes(CoordinateFile());
    const auto number = [&](std::size_t at) {
      std::uint64_t bits = 0;
      for (std::size_t i = 0; i < 8; ++i) {
        bits |= std::uint64_t{static_cast<unsigned char>(bytes[at + i])} << (8 * i);
      }
      return std::bit_cast<double>(bits);
    };
    std::vector<Ground> points;
    for (std::size_t at = 0; at + 16 <= bytes.size(); at += 16) {
      points.push_back({number(at), number(at + 8)});
    }
    return points;
  }

  static double Distance(Ground a, Ground b) { return std::hypot(a.x - b.x, a.y - b.y); }
};

// A quarter of a circle from (0, 0) to (100, 100).
TEST_F(CurveCalls, APositiveRadiusTurnsFromNorthTowardEast) {
  const struct {
    double radius;
    Ground centre;
  } rows[] = {{100.0, {0.0, 100.0}}, {-100.0, {100.0, 0.0}}};
  for (const auto& [radius, centre] : rows) {
    ASSERT_EQ(0, Tavix_DrwClr());
    EXPECT_EQ(0, Tavix_FigMdlArc(0.0, 0.0, 100.0, 100.0, radius));
    const std::vector<Ground> points = Points();
    ASSERT_GT(points.size(), 3U);
    for (const Ground& point : points) {
      EXPECT_NEAR(100.0, Distance(centre, point), 1e-9) << point.x << ", " << point.y;
    }
  }
}

// From a straight end to the north: y = x^3 / 6 A^2 as long as it turns little.
TEST_F(CurveCalls, AClothoidLeavesItsStraightEndTowardItsSecondRadius) {
  constexpr double kA = 150.0;
  for (const double side : {1.0, -1.0}) {
    ASSERT_EQ(0, Tavix_DrwClr());
    // 56.25 m of curve up to a radius of 400 m.
    const Ground end{56.222, side * 1.317};
    EXPECT_EQ(0, Tavix_FigMdlClo(0.0, 0.0, end.x, end.y, 0.0, kA, side * 400.0));
    const std::vector<Ground> points = Points();
    ASSERT_GT(points.size(), 3U);
    EXPECT_EQ(0.0, points.front().x);
    EXPECT_EQ(end.x, points.back().x);
    for (const Ground& point : points) {
      EXPECT_NEAR(side * point.x * point.x * point.x / (6 * kA * kA), point.y, 5e-3) << point.x;
    }
  }
}

}  // namespace
}  // namespace tavix::test
