#include "host/tools/sheet_scale.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace fieldhost {
namespace {

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
  EXPECT_EQ("'12.5' is no scale: type a whole number from 1 to 1000000.", NoScale("12.5"));
}

TEST(UsualScales, AreScalesInOrder) {
  EXPECT_TRUE(std::is_sorted(UsualScales().begin(), UsualScales().end()));
  for (const int scale : UsualScales()) EXPECT_EQ(ParseScale(std::to_string(scale)), scale);
}

// The library's own sum, for every scale a user can set.
TEST(MeantScale, FindsWhatWasSetBehindWhatIsTold) {
  int told_one_too_low = 0;
  for (int set = 1; set <= kLargestScale; ++set) {
    const double sheet_by_ground = 1.0 / set;
    const int told = static_cast<int>(1.0 / sheet_by_ground);
    told_one_too_low += told != set;
    ASSERT_EQ(MeantScale(told, set), set);
  }
  EXPECT_GT(told_one_too_low, 0);
}

TEST(MeantScale, TakesWhatIsToldOfAZoomedView) {
  EXPECT_EQ(750, MeantScale(750, 500));
  EXPECT_EQ(499, MeantScale(499, 500));
  EXPECT_EQ(0, MeantScale(0, 500));
  EXPECT_EQ(500, MeantScale(500, 0));
}

}  // namespace
}  // namespace fieldhost
