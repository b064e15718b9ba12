#include "host/survey/ground_geometry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace fieldhost {
namespace {

using Vertices = std::vector<GroundPosition>;

struct Measured {
  const char* what;
  Vertices vertices;
  double length;
  double perimeter;
  double area;
};

const Measured kMeasured[] = {
    {"nothing", {}, 0, 0, 0},
    {"one vertex", {{5, 7}}, 0, 0, 0},
    {"a line", {{0, 0}, {3, 4}}, 5, 10, 0},
    {"a right triangle", {{0, 0}, {3, 0}, {3, 4}}, 7, 12, 6},
    {"a square", {{0, 0}, {10, 0}, {10, 10}, {0, 10}}, 30, 40, 100},
    {"a square and back to its start", {{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}}, 40, 40, 100},
    {"a parcel with a vertex that points inward",
     {{0, 0}, {10, 0}, {10, 10}, {5, 5}, {0, 10}},
     20 + 10 * 1.4142135623730951,
     30 + 10 * 1.4142135623730951,
     75},
    {"vertices on one line",
     {{0, 0}, {1, 1}, {5, 5}},
     5 * 1.4142135623730951,
     10 * 1.4142135623730951,
     0},
    {"the same vertex three times", {{2, 3}, {2, 3}, {2, 3}}, 0, 0, 0},
};

TEST(GroundGeometry, MeasuresEachBoundary) {
  for (const Measured& row : kMeasured) {
    EXPECT_NEAR(row.length, PathLength(row.vertices), 1e-12) << row.what;
    EXPECT_NEAR(row.perimeter, Perimeter(row.vertices), 1e-12) << row.what;
    EXPECT_NEAR(row.area, EnclosedArea(row.vertices), 1e-12) << row.what;
  }
}

TEST(GroundGeometry, AreaIsTheSameTheOtherWayRound) {
  for (const Measured& row : kMeasured) {
    Vertices reversed = row.vertices;
    std::reverse(reversed.begin(), reversed.end());
    EXPECT_NEAR(row.area, EnclosedArea(reversed), 1e-12) << row.what;
  }
}

// Products of such coordinates have no digits left for square millimetres.
TEST(GroundGeometry, AreaKeepsItsDigitsFarFromTheGridsOrigin) {
  const double north = -4.0e6;
  const double east = 5.0e8;
  const Vertices parcel = {
      {north, east}, {north + 0.5, east}, {north + 0.5, east + 0.25}, {north, east + 0.25}};
  EXPECT_DOUBLE_EQ(0.125, EnclosedArea(parcel));
}

TEST(GroundGeometry, DistanceIsNeverNegative) {
  EXPECT_DOUBLE_EQ(5, Distance({0, 0}, {-3, -4}));
  EXPECT_DOUBLE_EQ(0, Distance({1, 1}, {1, 1}));
}

struct Boundary {
  const char* what;
  std::vector<GroundPosition> vertices;
  bool crosses;
};

TEST(CrossesItself, TellsSidesThatCutFromSidesThatTouch) {
  const Boundary rows[] = {
      {"nothing", {}, false},
      {"one vertex", {{0, 0}}, false},
      {"a line there and back", {{0, 0}, {10, 0}}, false},
      {"a triangle", {{0, 0}, {10, 0}, {0, 10}}, false},
      {"a square", {{0, 0}, {10, 0}, {10, 10}, {0, 10}}, false},
      {"a bow", {{0, 0}, {10, 10}, {10, 0}, {0, 10}}, true},
      {"a bow whose closing side cuts", {{0, 0}, {0, 10}, {10, 0}, {10, 10}}, true},
      {"a vertex that points inward", {{0, 0}, {10, 0}, {10, 10}, {5, 5}, {0, 10}}, false},
      {"a vertex that points out through the other side",
       {{0, 0}, {10, 0}, {10, 10}, {5, -5}, {0, 10}},
       true},
      {"a vertex upon the other side", {{0, 0}, {10, 0}, {10, 10}, {5, 0}, {0, 10}}, false},
      {"two squares that share a vertex",
       {{0, 0}, {10, 0}, {10, 10}, {20, 10}, {20, 20}, {10, 20}, {10, 10}, {0, 10}},
       false},
      {"a vertex given twice", {{0, 0}, {10, 0}, {10, 0}, {10, 10}, {0, 10}}, false},
  };
  for (const Boundary& row : rows) EXPECT_EQ(row.crosses, CrossesItself(row.vertices)) << row.what;
}

}  // namespace
}  // namespace fieldhost
