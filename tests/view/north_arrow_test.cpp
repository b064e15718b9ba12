#include <gtest/gtest.h>

#include "tests/view/view_of.h"
#include "view/scale_bar.h"

namespace tavix {
namespace {

CViewState Turned(int degrees) {
  CViewState view = test::ViewOf(100, 100);
  EXPECT_EQ(0, view.SetAngle(degrees));
  return view;
}

TEST(NorthArrow, IsShownInAViewThatIsTurnedByThreeDegreesOrMore) {
  for (const int degrees : {0, 1, 2, 358, 359}) {
    EXPECT_FALSE(ShowsNorthArrow(Turned(degrees))) << degrees;
  }
  for (const int degrees : {3, 90, 180, 270, 357}) {
    EXPECT_TRUE(ShowsNorthArrow(Turned(degrees))) << degrees;
  }
}

// Tail, tip, and the half of a barb; a positive angle turns the picture clockwise.
TEST(NorthArrow, PointsToWhereNorthIsOnTheScreen) {
  using Arrow = std::array<ScreenPoint, 3>;
  EXPECT_EQ((Arrow{{{3, 85}, {27, 85}, {20, 82}}}), NorthArrowOf(Turned(90)));
  EXPECT_EQ((Arrow{{{15, 73}, {15, 97}, {18, 90}}}), NorthArrowOf(Turned(180)));
  EXPECT_EQ((Arrow{{{27, 85}, {3, 85}, {10, 88}}}), NorthArrowOf(Turned(270)));
}

}  // namespace
}  // namespace tavix
