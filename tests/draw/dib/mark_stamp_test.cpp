#include "draw/dib/mark_stamp.h"

#include <gtest/gtest.h>

namespace tavix::test {
namespace {

class MarkStamps : public testing::TestWithParam<int> {
 protected:
  [[nodiscard]] static PointSymbol Symbol(int size, int width = 1) {
    return {GetParam(), size, 0, LabelContent::kName, {width, 0x00804020}};
  }
};

// Without this the rest would hold for a room in which nothing is ever a stamp.
TEST_P(MarkStamps, AreMadeOfEveryKind) {
  for (int size = 1; size <= 40; ++size) {
    for (int width = 0; width <= 3; ++width) {
      EXPECT_TRUE(MakeMarkStamp(Symbol(size, width))) << size << ", " << width;
    }
  }
  for (const auto& [size, width] : {std::pair{100, 1}, {1, 100}, {100, 100}}) {
    EXPECT_TRUE(MakeMarkStamp(Symbol(size, width))) << size << ", " << width;
  }
}

TEST_P(MarkStamps, AreNotMadeOfLargeMarks) {
  for (const auto& [size, width] : {std::pair{101, 1}, {5, 101}, {1 << 16, 1}, {5, -1}}) {
    EXPECT_FALSE(MakeMarkStamp(Symbol(size, width))) << size << ", " << width;
  }
}

INSTANTIATE_TEST_SUITE_P(Kind, MarkStamps, testing::Range(1, 12));

// All but the dot, an ellipse of no size that the system may draw nothing for.
class ShapedMarkStamps : public MarkStamps {};

TEST_P(ShapedMarkStamps, OfAnotherSymbolAreRefused) {
  const PointSymbol symbol = Symbol(10);
  const auto stamp = MakeMarkStamp(symbol);
  ASSERT_TRUE(stamp);
  EXPECT_TRUE(IsSystemsMark(*stamp, symbol));
  PointSymbol other_color = symbol;
  other_color.pen.color ^= 1;
  EXPECT_FALSE(IsSystemsMark(*stamp, other_color));
  PointSymbol other_mark = symbol;
  other_mark.mark = GetParam() % 11 + 1;
  EXPECT_FALSE(IsSystemsMark(*stamp, other_mark));
  EXPECT_FALSE(IsSystemsMark(*stamp, Symbol(12)));
}

INSTANTIATE_TEST_SUITE_P(Kind, ShapedMarkStamps, testing::Range(2, 12));

}  // namespace
}  // namespace tavix::test
