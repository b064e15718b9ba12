#include "host/tools/sheet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace fieldhost {
namespace {

PaperSize Paper(std::string_view name) {
  const auto sizes = PaperSizes();
  const auto found = std::find_if(sizes.begin(), sizes.end(),
                                  [&](const PaperSize& paper) { return paper.name == name; });
  return found == sizes.end() ? PaperSize{} : *found;
}

TEST(PaperSizes, HaveTheSidesOfTheStandards) {
  const struct {
    const char* name;
    int short_side;  // millimetres
    int long_side;
  } rows[] = {
      {"A0", 841, 1189}, {"A1", 594, 841}, {"A2", 420, 594}, {"A3", 297, 420}, {"A4", 210, 297},
      {"B1", 728, 1030}, {"B2", 515, 728}, {"B3", 364, 515}, {"B4", 257, 364}, {"B5", 182, 257},
  };
  EXPECT_EQ(PaperSizes().size(), std::size(rows));
  for (const auto& row : rows) {
    EXPECT_EQ(Paper(row.name).short_side, row.short_side * 10) << row.name;
    EXPECT_EQ(Paper(row.name).long_side, row.long_side * 10) << row.name;
  }
}

TEST(Sheet, LandscapeLiesOnItsLongSide) {
  Sheet sheet = {.paper = Paper("A4"), .landscape = false, .scale = 500};
  EXPECT_EQ(2970, sheet.Height());
  EXPECT_EQ(2100, sheet.Width());
  sheet.landscape = true;
  EXPECT_EQ(2100, sheet.Height());
  EXPECT_EQ(2970, sheet.Width());
}

// The middle of a sheet on the ground; up on it is `degrees` anticlockwise of north.
GroundPosition Middle(const GroundPosition& origin, const Sheet& sheet, int scale, double degrees) {
  const double half_height = sheet.Height() * 0.0001 * scale / 2;
  const double half_width = sheet.Width() * 0.0001 * scale / 2;
  const double diagonal = std::hypot(half_height, half_width);
  const double azimuth = std::atan2(half_width, half_height) - degrees * 3.14159265358979324 / 180;
  return {origin.north + diagonal * std::cos(azimuth), origin.east + diagonal * std::sin(azimuth)};
}

TEST(OriginAboutSameMiddle, KeepsTheMiddleInEveryTurnedView) {
  const GroundPosition origin = {-35000.0, 12000.0};
  for (const bool landscape : {false, true}) {
    const Sheet sheet = {.paper = Paper("A3"), .landscape = landscape, .scale = 250};
    for (const int old_scale : {100, 250, 1000}) {
      for (const int degrees : {0, 30, 90, 200, 359}) {
        const GroundPosition moved = OriginAboutSameMiddle(origin, sheet, old_scale, degrees);
        const GroundPosition before = Middle(origin, sheet, old_scale, degrees);
        const GroundPosition after = Middle(moved, sheet, sheet.scale, degrees);
        EXPECT_NEAR(before.north, after.north, 1e-6) << old_scale << ' ' << degrees;
        EXPECT_NEAR(before.east, after.east, 1e-6) << old_scale << ' ' << degrees;
      }
    }
  }
}

TEST(OriginAboutSameMiddle, StaysAtTheSameScale) {
  const GroundPosition origin = {1.0, 2.0};
  const Sheet sheet = UsualSheet();
  EXPECT_EQ(OriginAboutSameMiddle(origin, sheet, sheet.scale, 45), origin);
}

}  // namespace
}  // namespace fieldhost
