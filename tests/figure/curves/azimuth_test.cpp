#include "figure/curves/azimuth.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tavix {
namespace {

constexpr double kPi = 3.141592653589793;

TEST(Azimuth, RunsClockwiseFromNorth) {
  const struct {
    double north;
    double east;
    double azimuth;
  } rows[] = {{1, 0, 0},
              {1, 1, kPi / 4},
              {0, 1, kPi / 2},
              {-1, 1, 3 * kPi / 4},
              {-1, 0, kPi},
              {-1, -1, 5 * kPi / 4},
              {0, -1, 3 * kPi / 2},
              {1, -1, 7 * kPi / 4},
              {std::sqrt(3.0), 1, kPi / 6},
              {1e6, 1e6, kPi / 4}};
  for (const auto& row : rows) {
    EXPECT_DOUBLE_EQ(row.azimuth, Azimuth(row.north, row.east)) << row.north << ' ' << row.east;
  }
}

TEST(Azimuth, AVectorWithoutANorthPartIsEastOrWestToTheLastBit) {
  const struct {
    double north;
    double east;
    double azimuth;
  } rows[] = {{0, 5, 1.5707963267948966},      {0, -5, 4.71238898038469},
              {9.9e-8, 5, 1.5707963267948966}, {-9.9e-8, 5, 1.5707963267948966},
              {9.9e-8, -5, 4.71238898038469},  {0, 1e-300, 1.5707963267948966},
              {0, 0, 4.71238898038469},        {9.9e-8, 0, 4.71238898038469},
              {-9.9e-8, 0, 4.71238898038469}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.azimuth, Azimuth(row.north, row.east)) << row.north << ' ' << row.east;
  }
}

TEST(Azimuth, AtTheToleranceTheNorthPartCounts) {
  EXPECT_DOUBLE_EQ(0.0, Azimuth(1e-7, 0));
  EXPECT_DOUBLE_EQ(kPi, Azimuth(-1e-7, 0));
  EXPECT_DOUBLE_EQ(kPi / 4, Azimuth(1e-7, 1e-7));
}

TEST(Azimuth, TurnsOnceAroundWithoutAJump) {
  double before = -1e-9;
  for (int i = 0; i < 3600; ++i) {
    const double angle = i * kPi / 1800;
    const double azimuth = Azimuth(std::cos(angle), std::sin(angle));
    EXPECT_GT(azimuth, before) << i;
    EXPECT_LT(azimuth, 2 * kPi) << i;
    EXPECT_NEAR(azimuth, angle, 1e-12) << i;
    before = azimuth;
  }
}

TEST(InverseOf, PointsThatCoincideHaveNoAzimuth) {
  const struct {
    GroundPoint to;
    double azimuth;
  } rows[] = {{{1, 1}, 0},
              {{1 + 5e-8, 1 - 5e-8}, 0},
              {{1, 1 + 2e-7}, kPi / 2},  // one part is enough to have an azimuth
              {{1, 1 - 2e-7}, 3 * kPi / 2},
              {{1 - 2e-7, 1}, kPi}};
  for (const auto& row : rows) {
    const Inverse inverse = InverseOf({1, 1}, row.to);
    EXPECT_DOUBLE_EQ(row.azimuth, inverse.azimuth) << row.to.north - 1 << ' ' << row.to.east - 1;
    EXPECT_DOUBLE_EQ(inverse.distance, std::hypot(row.to.north - 1, row.to.east - 1));
  }
}

}  // namespace
}  // namespace tavix
