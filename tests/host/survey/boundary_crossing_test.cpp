#include "host/survey/boundary_crossing.h"

#include <gtest/gtest.h>

#include <vector>

namespace fieldhost {
namespace {

struct Boundary {
  const char* what;
  std::vector<GroundPosition> corners;
  bool crosses;
};

TEST(CrossesItself, TellsSidesThatCutFromSidesThatTouch) {
  const Boundary rows[] = {
      {"nothing", {}, false},
      {"one corner", {{0, 0}}, false},
      {"a line there and back", {{0, 0}, {10, 0}}, false},
      {"a triangle", {{0, 0}, {10, 0}, {0, 10}}, false},
      {"a square", {{0, 0}, {10, 0}, {10, 10}, {0, 10}}, false},
      {"a bow", {{0, 0}, {10, 10}, {10, 0}, {0, 10}}, true},
      {"a bow whose closing side cuts", {{0, 0}, {0, 10}, {10, 0}, {10, 10}}, true},
      {"a corner that points inward", {{0, 0}, {10, 0}, {10, 10}, {5, 5}, {0, 10}}, false},
      {"a corner that points out through the other side",
       {{0, 0}, {10, 0}, {10, 10}, {5, -5}, {0, 10}},
       true},
      {"a corner upon the other side", {{0, 0}, {10, 0}, {10, 10}, {5, 0}, {0, 10}}, false},
      {"two squares that share a corner",
       {{0, 0}, {10, 0}, {10, 10}, {20, 10}, {20, 20}, {10, 20}, {10, 10}, {0, 10}},
       false},
      {"a corner given twice", {{0, 0}, {10, 0}, {10, 0}, {10, 10}, {0, 10}}, false},
  };
  for (const Boundary& row : rows) EXPECT_EQ(row.crosses, CrossesItself(row.corners)) << row.what;
}

}  // namespace
}  // namespace fieldhost
