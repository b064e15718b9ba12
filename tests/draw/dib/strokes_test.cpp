#include "draw/dib/strokes.h"

#include <gtest/gtest.h>

namespace tavix::test {
namespace {

constexpr Pen kPen{3, 0x000000FF};
constexpr int kOften = 100;

class PenStrokes : public testing::Test {
 protected:
  // What is there once it has been asked for many times.
  static const MarkMask* LineOf(Strokes& strokes, int dx, int dy) {
    for (int i = 0; i < kOften; ++i) static_cast<void>(strokes.Line(dx, dy));
    return strokes.Line(dx, dy);
  }
  static const MarkMask* CircleOf(Strokes& strokes, int radius) {
    for (int i = 0; i < kOften; ++i) static_cast<void>(strokes.Circle(radius));
    return strokes.Circle(radius);
  }

  MemoryBudget budget_{1 << 20};
  Strokes strokes_{kPen, budget_};
};

TEST_F(PenStrokes, AreProbedOnceTheyComeOften) {
  EXPECT_FALSE(strokes_.Line(3, 4));
  const MarkMask* line = LineOf(strokes_, 3, 4);
  ASSERT_TRUE(line);
  EXPECT_EQ(line, strokes_.Line(3, 4));
  EXPECT_FALSE(strokes_.Line(4, 3));
  EXPECT_FALSE(strokes_.Circle(9));
  const MarkMask* circle = CircleOf(strokes_, 9);
  ASSERT_TRUE(circle);
  EXPECT_EQ(circle, strokes_.Circle(-9));
}

TEST_F(PenStrokes, AreLeftToGdiWhenLongOrWide) {
  EXPECT_TRUE(LineOf(strokes_, Strokes::kLongest, -Strokes::kLongest));
  EXPECT_FALSE(LineOf(strokes_, Strokes::kLongest + 1, 0));
  EXPECT_FALSE(LineOf(strokes_, 0, -Strokes::kLongest - 1));
  EXPECT_TRUE(CircleOf(strokes_, Strokes::kLargestRadius));
  EXPECT_FALSE(CircleOf(strokes_, Strokes::kLargestRadius + 1));
  Strokes wide({Strokes::kWidest + 1, 0}, budget_);
  EXPECT_FALSE(LineOf(wide, 3, 4));
  EXPECT_FALSE(CircleOf(wide, 3));
}

TEST_F(PenStrokes, AreLeftToGdiWithoutMemory) {
  MemoryBudget none(0);
  Strokes strokes(kPen, none);
  EXPECT_FALSE(LineOf(strokes, 3, 4));
}

}  // namespace
}  // namespace tavix::test
