#include "draw/dib/gdi_probe.h"

#include <gtest/gtest.h>

namespace tavix::test {
namespace {

// ---- Lines

TEST(TieRuleProbe, FindsTheRuleOfGdi) {
  const std::optional<TieRule> rule = ProbeTieRule();
  ASSERT_TRUE(rule);
  EXPECT_TRUE(IsGdiTieRule(*rule));
}

// A rule that is wrong in one octant must not pass.
TEST(TieRuleProbe, RefusesAFalseRule) {
  const std::optional<TieRule> rule = ProbeTieRule();
  ASSERT_TRUE(rule);
  for (int octant = 0; octant < TieRule::kOctants; ++octant) {
    TieRule wrong = *rule;
    wrong.SetStepsAtOnce(octant, !rule->StepsAtOnce(octant));
    EXPECT_FALSE(IsGdiTieRule(wrong)) << octant;
  }
}

// ---- Marks

class MarkProbes : public testing::TestWithParam<int> {
 protected:
  [[nodiscard]] static PointSymbol Symbol(int size, int width = 1) {
    return {GetParam(), size, 0, LabelContent::kName, {width, 0x00804020}};
  }
};

// Without this the rest would hold for a canvas on which GDI draws everything.
TEST_P(MarkProbes, AreMadeOfEveryKind) {
  for (int size = 1; size <= 40; ++size) {
    for (int width = 0; width <= 3; ++width) {
      EXPECT_TRUE(ProbeMark(Symbol(size, width))) << size << ", " << width;
    }
  }
  for (const auto& [size, width] : {std::pair{100, 1}, {1, 100}, {100, 100}}) {
    EXPECT_TRUE(ProbeMark(Symbol(size, width))) << size << ", " << width;
  }
}

TEST_P(MarkProbes, AreNotMadeOfLargeMarks) {
  for (const auto& [size, width] : {std::pair{101, 1}, {5, 101}, {1 << 16, 1}, {5, -1}}) {
    EXPECT_FALSE(ProbeMark(Symbol(size, width))) << size << ", " << width;
  }
}

INSTANTIATE_TEST_SUITE_P(Kind, MarkProbes, testing::Range(1, 12));

// All but the dot, an ellipse of no size that GDI may draw nothing for.
class ShapedMarkProbes : public MarkProbes {};

TEST_P(ShapedMarkProbes, OfAnotherSymbolAreRefused) {
  const PointSymbol symbol = Symbol(10);
  const auto mask = ProbeMark(symbol);
  ASSERT_TRUE(mask);
  EXPECT_TRUE(IsGdiMark(*mask, symbol));
  PointSymbol other_color = symbol;
  other_color.pen.color ^= 1;
  EXPECT_FALSE(IsGdiMark(*mask, other_color));
  PointSymbol other_mark = symbol;
  other_mark.mark = GetParam() % 11 + 1;
  EXPECT_FALSE(IsGdiMark(*mask, other_mark));
  EXPECT_FALSE(IsGdiMark(*mask, Symbol(12)));
}

INSTANTIATE_TEST_SUITE_P(Kind, ShapedMarkProbes, testing::Range(2, 12));

}  // namespace
}  // namespace tavix::test
