#include "draw/point_label.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <type_traits>

namespace tavix {
namespace {

constexpr int kMax = std::numeric_limits<int>::max();
constexpr int kMin = std::numeric_limits<int>::min();

LegendStyle StyleWithFlag(std::int32_t flag) { return {1, 10, 10, flag, 1, 0}; }

TEST(LabelText, IsTheNumberOrTheNameAsTheEntryAsks) {
  const struct {
    std::int32_t flag;
    std::int32_t number;
    NameView name;
    NameView text;
  } rows[] = {{1, 1, u"A", u"1"},  {1, 42, u"A", u"42"}, {1, kMax, u"A", u"2147483647"},
              {1, 0, u"A", u""},   {1, -5, u"A", u""},   {1, kMin, u"A", u""},
              {2, 7, u"A", u"7"},  // any value but zero asks for the number
              {-1, 7, u"A", u"7"}, {0, 7, u"A", u"A"},   {0, 0, u"基準点", u"基準点"},
              {0, -5, u"A", u"A"}, {0, 7, u"", u""}};
  for (const auto& row : rows) {
    const LabelText label(StyleWithFlag(row.flag), row.number, row.name);
    EXPECT_EQ(row.text, label.Text()) << row.flag << ' ' << row.number;
  }
}

// The text may lie in the object itself: a copy would show the digits of a label that is gone.
TEST(LabelText, CannotBeCopied) {
  EXPECT_FALSE(std::is_copy_constructible_v<LabelText>);
  EXPECT_FALSE(std::is_copy_assignable_v<LabelText>);
  EXPECT_FALSE(std::is_move_constructible_v<LabelText>);
  EXPECT_FALSE(std::is_move_assignable_v<LabelText>);
}

TEST(PlaceLabel, StandsAQuarterOfTheMarkBelowThePoint) {
  const struct {
    ScreenPoint at;
    int mark;
    int height;
    int length;
    LabelBox box;
  } rows[] = {{{100, 50}, 10, 12, 3, {100, 52, 172, 40}},
              {{100, 50}, 0, 12, 3, {100, 50, 172, 38}},
              {{100, 50}, 3, 1, 1, {100, 50, 102, 49}},  // 3 / 4 truncates
              {{100, 50}, 4, 1, 1, {100, 51, 102, 50}},
              {{100, 50}, -7, 1, 1, {100, 49, 102, 48}},  // toward zero
              {{-5, -6}, 8, 10, 0, {-5, -4, -5, -14}}};
  for (const auto& row : rows) {
    const LabelBox box = PlaceLabel(row.at, row.mark, row.height, row.length);
    EXPECT_EQ(row.box.left, box.left);
    EXPECT_EQ(row.box.top, box.top);
    EXPECT_EQ(row.box.right, box.right);
    EXPECT_EQ(row.box.bottom, box.bottom);
  }
}

TEST(PlaceLabel, AVeryLongLabelStaysInRange) {
  const LabelBox box = PlaceLabel({100, 50}, 10, 1 << 24, kMax);
  EXPECT_EQ(kMax, box.right);
  EXPECT_EQ(100, box.left);
}

}  // namespace
}  // namespace tavix
