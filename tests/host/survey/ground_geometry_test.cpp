#include "host/survey/ground_geometry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace fieldhost {
namespace {

using Corners = std::vector<GroundPosition>;

struct Measured {
  const char* what;
  Corners corners;
  double length;
  double perimeter;
  double area;
};

const Measured kMeasured[] = {
    {"nothing", {}, 0, 0, 0},
    {"one corner", {{5, 7}}, 0, 0, 0},
    {"a line", {{0, 0}, {3, 4}}, 5, 10, 0},
    {"a right triangle", {{0, 0}, {3, 0}, {3, 4}}, 7, 12, 6},
    {"a square", {{0, 0}, {10, 0}, {10, 10}, {0, 10}}, 30, 40, 100},
    {"a square and back to its start", {{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}}, 40, 40, 100},
    {"a lot with a corner that points inward",
     {{0, 0}, {10, 0}, {10, 10}, {5, 5}, {0, 10}},
     20 + 10 * 1.4142135623730951,
     30 + 10 * 1.4142135623730951,
     75},
    {"corners on one line",
     {{0, 0}, {1, 1}, {5, 5}},
     5 * 1.4142135623730951,
     10 * 1.4142135623730951,
     0},
    {"the same corner three times", {{2, 3}, {2, 3}, {2, 3}}, 0, 0, 0},
};

TEST(GroundGeometry, MeasuresEachBoundary) {
  for (const Measured& row : kMeasured) {
    EXPECT_NEAR(row.length, PathLength(row.corners), 1e-12) << row.what;
    EXPECT_NEAR(row.perimeter, Perimeter(row.corners), 1e-12) << row.what;
    EXPECT_NEAR(row.area, EnclosedArea(row.corners), 1e-12) << row.what;
  }
}

TEST(GroundGeometry, AreaIsTheSameTheOtherWayRound) {
  for (const Measured& row : kMeasured) {
    Corners reversed = row.corners;
    std::reverse(reversed.begin(), reversed.end());
    EXPECT_NEAR(row.area, EnclosedArea(reversed), 1e-12) << row.what;
  }
}

// Products of such coordinates have no digits left for square millimetres.
TEST(GroundGeometry, AreaKeepsItsDigitsFarFromTheGridsOrigin) {
  const double north = -4.0e6;
  const double east = 5.0e8;
  const Corners lot = {
      {north, east}, {north + 0.5, east}, {north + 0.5, east + 0.25}, {north, east + 0.25}};
  EXPECT_DOUBLE_EQ(0.125, EnclosedArea(lot));
}

TEST(GroundGeometry, DistanceIsNeverNegative) {
  EXPECT_DOUBLE_EQ(5, Distance({0, 0}, {-3, -4}));
  EXPECT_DOUBLE_EQ(0, Distance({1, 1}, {1, 1}));
}

}  // namespace
}  // namespace fieldhost
