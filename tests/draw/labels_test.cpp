#include "draw/labels.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <type_traits>

namespace tavix {
namespace {

constexpr int kMax = std::numeric_limits<int>::max();
constexpr int kMin = std::numeric_limits<int>::min();

using enum LabelContent;

TEST(LabelText, IsTheNumberOrTheNameAsTheSymbolAsks) {
  const struct {
    LabelContent content;
    std::int32_t number;
    NameView name;
    NameView text;
  } rows[] = {{kNumber, 1, u"A", u"1"},
              {kNumber, 42, u"A", u"42"},
              {kNumber, kMax, u"A", u"2147483647"},
              {kNumber, 0, u"A", u""},
              {kNumber, -5, u"A", u""},
              {kNumber, kMin, u"A", u""},
              {kName, 7, u"A", u"A"},
              {kName, 0, u"基準点", u"基準点"},
              {kName, -5, u"A", u"A"},
              {kName, 7, u"", u""}};
  for (const auto& row : rows) {
    const LabelText label(row.content, row.number, row.name);
    EXPECT_EQ(row.text, label.Text()) << static_cast<int>(row.content) << ' ' << row.number;
  }
}

// The text may lie in the object itself: a copy would show the digits of a label that is gone.
TEST(LabelText, CannotBeCopied) {
  EXPECT_FALSE(std::is_copy_constructible_v<LabelText>);
  EXPECT_FALSE(std::is_copy_assignable_v<LabelText>);
  EXPECT_FALSE(std::is_move_constructible_v<LabelText>);
  EXPECT_FALSE(std::is_move_assignable_v<LabelText>);
}

PointSymbol SymbolOf(int mark_size, int label_height) {
  return {2, mark_size, label_height, kName, {1, 0}};
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
    const LabelBox box = PlaceLabel(row.at, SymbolOf(row.mark, row.height), row.length);
    EXPECT_EQ(row.box.left, box.left);
    EXPECT_EQ(row.box.top, box.top);
    EXPECT_EQ(row.box.right, box.right);
    EXPECT_EQ(row.box.bottom, box.bottom);
  }
}

TEST(PlaceLabel, AVeryLongLabelStaysInRange) {
  const LabelBox box = PlaceLabel({100, 50}, SymbolOf(10, 1 << 24), kMax);
  EXPECT_EQ(kMax, box.right);
  EXPECT_EQ(100, box.left);
}

}  // namespace
}  // namespace tavix
