#include "view/paper_frame.h"

#include <gtest/gtest.h>

#include "tests/view/view_of.h"

namespace tavix {
namespace {

using test::ViewOf;

constexpr int kPerInch = 96;
constexpr int kTenInches = 960;  // 0.254 m

PaperFrame SquareSheet(const CViewState& view) {
  PaperFrame frame;
  frame.TurnOn(view, kPerInch, kTenInches, kPerInch, kTenInches);
  return frame;
}

void ExpectNear(GroundPoint expected, GroundPoint actual) {
  EXPECT_NEAR(expected.north, actual.north, 1e-9);
  EXPECT_NEAR(expected.east, actual.east, 1e-9);
}

TEST(PaperFrame, IsOffAtFirstAndShownOnlyWhileItIsOn) {
  PaperFrame frame;
  EXPECT_FALSE(frame.IsOn());
  frame.SetShown(true);
  EXPECT_FALSE(frame.IsShown());
  frame.TurnOn(ViewOf(310, 210), kPerInch, kTenInches, kPerInch, kTenInches);
  EXPECT_TRUE(frame.IsOn());
  EXPECT_TRUE(frame.IsShown());
  frame.SetShown(false);
  EXPECT_FALSE(frame.IsShown());
  frame.TurnOff();
  EXPECT_FALSE(frame.IsOn());
}

TEST(PaperFrame, FillsTheHeightOfAWideArea) {
  const PaperFrame frame = SquareSheet(ViewOf(310, 210));
  EXPECT_EQ((std::array<ScreenPoint, 5>{{{55, 5}, {255, 5}, {255, 205}, {55, 205}, {55, 5}}}),
            frame.Outline());
  EXPECT_EQ(200, frame.Width());
  EXPECT_EQ(200, frame.Height());
}

TEST(PaperFrame, FillsTheWidthOfATallArea) {
  const PaperFrame frame = SquareSheet(ViewOf(210, 310));
  EXPECT_EQ((std::array<ScreenPoint, 5>{{{5, 55}, {205, 55}, {205, 255}, {5, 255}, {5, 55}}}),
            frame.Outline());
}

// 200 m on 0.254 m.
TEST(PaperFrame, HasTheScaleAndTheOriginOfTheGroundItCovers) {
  const PaperFrame frame = SquareSheet(ViewOf(310, 210));
  EXPECT_EQ(787, frame.Scale());
  EXPECT_DOUBLE_EQ(0.254 / 200, frame.ScaleFactor());
  EXPECT_DOUBLE_EQ(0.254, frame.SheetWidth());
  ExpectNear({-100, -100}, frame.Origin());
}

TEST(PaperFrame, GivesTheViewAScaleAndKeepsItsOrigin) {
  CViewState view = ViewOf(310, 210);
  PaperFrame frame = SquareSheet(view);
  EXPECT_FALSE(frame.SetScale(view, 500));
  EXPECT_DOUBLE_EQ(1.0 / 500, frame.ScaleFactor());
  EXPECT_DOUBLE_EQ(200 / (0.254 * 500), view.Scale());
  frame.Follow(view);
  ExpectNear({-100, -100}, frame.Origin());
}

TEST(PaperFrame, SaysThatTheViewsLargestScaleCutItsOwn) {
  CViewState view = ViewOf(310, 210);
  PaperFrame frame;
  frame.TurnOn(view, kPerInch, 1, kPerInch, 1);  // a sheet of a quarter of a millimetre
  EXPECT_TRUE(frame.SetScale(view, 1));
  EXPECT_EQ(CViewState::kScaleCap, view.Scale());
}

TEST(PaperFrame, PutsItsOriginWhereItIsAskedFor) {
  CViewState view = ViewOf(310, 210);
  PaperFrame frame = SquareSheet(view);
  frame.SetOrigin(view, {1000, 2000});
  ExpectNear({1000, 2000}, frame.Origin());
  ExpectNear({1000, 2000}, view.ScreenToGround({55, 205}));
}

TEST(PaperFrame, FollowsTheViewWithItsOriginAndWithItsScaleOnceThatIsStale) {
  CViewState view = ViewOf(310, 210);
  PaperFrame frame = SquareSheet(view);
  EXPECT_FALSE(view.ZoomIn(2));
  frame.Follow(view);
  ExpectNear({-50, -50}, frame.Origin());
  EXPECT_EQ(787, frame.Scale());
  frame.MarkScaleStale();
  frame.Follow(view);
  EXPECT_EQ(393, frame.Scale());
}

TEST(PaperFrame, FollowsNothingWhileItIsOff) {
  PaperFrame frame;
  frame.Follow(ViewOf(310, 210));
  ExpectNear({0, 0}, frame.Origin());
}

}  // namespace
}  // namespace tavix
