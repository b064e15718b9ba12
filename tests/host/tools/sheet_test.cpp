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

TEST(ParseScale, TakesWhatUsersType) {
  const struct {
    const char* typed;
    int scale;
  } rows[] = {
      {"500", 500},
      {" 500 ", 500},
      {"1:500", 500},
      {"1 : 500", 500},
      {"1/500", 500},
      {"1", 1},
      {"1:1", 1},
      {"1000000", 1000000},
      {"1,000,000", 1000000},
      {"25 000", 25000},
      {"00250", 250},
      {"５００", 500},
      {"１：２５００", 2500},
      {"１／１，０００", 1000},
      {"　６００　", 600},
  };
  for (const auto& row : rows) EXPECT_EQ(row.scale, ParseScale(row.typed)) << row.typed;
}

TEST(ParseScale, RefusesTheRest) {
  for (const char* typed :
       {"",      "  ",  "0",    "1:0",  "-5",    "+5",      "abc",     "500m",
        "2:500", "1:",  ":",    ":500", "1:5:5", "1:500/2", "1000001", "99999999999999999999",
        "12.5",  "1e3", ",500", "0x10", "1:-5"}) {
    EXPECT_EQ(std::nullopt, ParseScale(typed)) << typed;
  }
}

TEST(NoScale, SaysWhatIsWrong) {
  EXPECT_EQ("Type a scale, such as 500 for 1:500.", NoScale(" "));
  EXPECT_EQ("'12.5' is not a scale: type a whole number from 1 to 1000000.", NoScale("12.5"));
}

TEST(UsualScales, AreScalesInOrder) {
  EXPECT_TRUE(std::is_sorted(UsualScales().begin(), UsualScales().end()));
  for (const int scale : UsualScales()) EXPECT_EQ(ParseScale(std::to_string(scale)), scale);
}

// The library reports the scale as it computes it here: for some scales one too low.
TEST(ScaleNow, IsWhatWasSetThoughTheReportIsTruncated) {
  int reported_one_too_low = 0;
  for (int set = 1; set <= kLargestScale; ++set) {
    const double sheet_by_ground = 1.0 / set;
    const int reported = static_cast<int>(1.0 / sheet_by_ground);
    reported_one_too_low += reported != set;
    ASSERT_EQ(set, ScaleNow(reported, {set, reported}));
  }
  EXPECT_GT(reported_one_too_low, 0);
}

TEST(ScaleNow, IsTheReportOfAZoomedView) {
  EXPECT_EQ(750, ScaleNow(750, {500, 500}));
  EXPECT_EQ(499, ScaleNow(499, {500, 500}));
  EXPECT_EQ(93, ScaleNow(93, {93, 92}));
  EXPECT_EQ(0, ScaleNow(0, {500, 500}));
  EXPECT_EQ(500, ScaleNow(500, {}));
}

}  // namespace
}  // namespace fieldhost
