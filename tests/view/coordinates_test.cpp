#include "view/coordinates.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tavix {
namespace {

TEST(TruncateToInt, GoesTowardZeroAndStopsAtTheRange) {
  constexpr int kMax = std::numeric_limits<int>::max();
  constexpr int kMin = std::numeric_limits<int>::min();
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const struct {
    double value;
    int pixel;
  } rows[] = {{0.0, 0},
              {0.999999, 0},
              {-0.999999, 0},
              {1.0, 1},
              {-1.5, -1},
              {2147483646.9, kMax - 1},
              {2147483647.0, kMax},
              {2147483647.5, kMax},
              {2147483648.0, kMax},
              {-2147483647.9, kMin + 1},
              {-2147483648.0, kMin},
              {-2147483648.9, kMin},
              {-2147483649.0, kMin},
              {kInfinity, kMax},
              {-kInfinity, kMin},
              {std::nan(""), kMin}};
  for (const auto& row : rows) EXPECT_EQ(row.pixel, TruncateToInt(row.value)) << row.value;
}

}  // namespace
}  // namespace tavix
