#include "store/point_compare.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tavix {
namespace {

TEST(SamePlace, IsStrictlyCloserThanTheTolerance) {
  const struct {
    GroundPoint other;
    bool same;
  } rows[] = {{{0, 0}, true},
              {{0.0000099, -0.0000099}, true},
              {{1e-5, 0}, false},
              {{0, -1e-5}, false},
              {{0.00002, 0.00002}, false},
              {{0, 5}, false},
              {{std::nan(""), 0}, false}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.same, IsSamePlace({0, 0}, row.other)) << row.other.north << ' ' << row.other.east;
    EXPECT_EQ(row.same, IsSamePlace(row.other, {0, 0})) << row.other.north << ' ' << row.other.east;
  }
}

}  // namespace
}  // namespace tavix
