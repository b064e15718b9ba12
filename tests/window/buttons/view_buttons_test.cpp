// What the view buttons do to the view, before and after the first fit.
#include <tavix/tavix.h>

#include <functional>
#include <string>

#include "tests/support/interaction_test.h"
#include "tests/support/legend_bytes.h"
#include "tests/support/picture_compare.h"

namespace tavix::test {
namespace {

using ViewButtons = InteractionTest;

TEST_F(ViewButtons, ZoomBeforeTheFirstFitFromOnePixelAMetre) {
  ASSERT_EQ(0, Enter(1, {20.0, 40.0}, legend_));
  Press(kZoomInButton);
  EXPECT_TRUE(SamePicture(CrossesAt({{180, 60}}), Shown()));
  Press(kZoomInButton);
  EXPECT_TRUE(SamePicture(CrossesAt({{210, 45}}), Shown()));
  Press(kZoomOutButton);
  Press(kZoomOutButton);
  Press(kZoomOutButton);
  EXPECT_TRUE(SamePicture(CrossesAt({{146, 76}}), Shown()));  // 26.67 east, 13.33 north
}

TEST_F(ViewButtons, ZoomInStopsAtTheCap) {
  ASSERT_EQ(0, Enter(1, {-0.000244140625, 0.00048828125}, legend_));  // 24.4 and 48.8 pixels then
  for (int press = 0; press < 40; ++press) Press(kZoomInButton);
  EXPECT_TRUE(SamePicture(CrossesAt({{168, 114}}), Shown()));
}

TEST_F(ViewButtons, ZoomOutHasNoLimit) {
  ASSERT_EQ(0, Enter(1, {1e9, -1e9}, legend_));
  for (int press = 0; press < 2000; ++press) {
    ::SendMessageW(Window(), WM_COMMAND, kZoomOutButton, 0);
  }
  EXPECT_TRUE(SamePicture(CrossesAt({{120, 90}}), Shown()));
}

TEST_F(ViewButtons, WholeFitsChangedData) {
  ASSERT_EQ(0, Enter(1, {0.0, 0.0}, legend_));
  ASSERT_EQ(0, Enter(2, {0.0, 110.0}, legend_));
  Press(kWholeViewButton);  // two pixels a metre
  EXPECT_TRUE(SamePicture(CrossesAt({{10, 90}, {230, 90}}), Shown()));
}

TEST_F(ViewButtons, WholeTogglesBetweenTheHomeViewAndTheOneBefore) {
  ASSERT_EQ(0, Enter(1, {0.0, 0.0}, legend_));
  ASSERT_EQ(0, Enter(2, {0.0, 110.0}, legend_));
  Press(kWholeViewButton);
  const Picture home = Shown();
  Press(kZoomInButton);
  const Picture zoomed = Shown();
  ASSERT_FALSE(home == zoomed);
  for (int turn = 0; turn < 2; ++turn) ExpectWholeViewAndBack(home, zoomed);
}

TEST_F(ViewButtons, WholeOfNothingKeepsTheView) {
  Press(kWholeViewButton);
  ASSERT_EQ(0, Enter(1, {10.0, 20.0}, legend_));
  EXPECT_TRUE(SamePicture(CrossesAt({{140, 80}}), Redrawn()));
}

TEST_F(ViewButtons, WholeFitsAnewAfterTheseChangesOnly) {
  const struct {
    const char* what;
    std::function<void()> change;  // none moves the data's extent
    bool fits;
  } rows[] = {
      {"nothing", [] {}, false},
      {"number and name", [] { Tavix_ChgPntNoNam(1, 5, L"B"); }, false},
      {"the same coordinates", [] { Tavix_ChgPntCrd(1, 0.0, 0.0); }, true},
      {"the same legend", [this] { Tavix_ChgPntHid(1, legend_); }, true},
      {"entered again",
       [this] {
         Enter(1, {0.0, 0.0}, legend_);
       },
       true},
      {"a new point",
       [this] {
         Enter(4, {0.0, 50.0}, legend_);
       },
       true},
      {"a point removed", [] { Tavix_DelEntPnt(3); }, true},
      {"an unknown point removed", [] { Tavix_DelEntPnt(99); }, true},
      {"an unknown point changed", [] { Tavix_ChgPntCrd(99, 0.0, 0.0); }, false},
  };
  for (const auto& [what, change, fits] : rows) {
    Tavix_DrwClr();
    ASSERT_EQ(0, Enter(1, {0.0, 0.0}, legend_));
    ASSERT_EQ(0, Enter(2, {0.0, 110.0}, legend_));
    ASSERT_EQ(0, Enter(3, {0.0, 60.0}, legend_));
    Press(kWholeViewButton);
    Press(kZoomInButton);
    Press(kWholeViewButton);  // the home view, and the zoomed one is the view before it
    ASSERT_EQ(0xFF0000U, Shown().At(10, 90)) << what;
    change();
    Press(kWholeViewButton);
    EXPECT_EQ(fits, Shown().At(10, 90) == 0xFF0000U) << what;
  }
}

TEST_F(ViewButtons, ARedrawLeavesTheDataToBeFittedByWhole) {
  ASSERT_EQ(0, Enter(1, {0.0, 0.0}, legend_));
  ASSERT_EQ(0, Enter(2, {0.0, 110.0}, legend_));
  EXPECT_EQ(0, Tavix_Drw(0));
  const Picture fitted = Shown();
  Press(kZoomInButton);
  Press(kWholeViewButton);  // fits; the view before is the zoomed one
  EXPECT_TRUE(SamePicture(fitted, Shown()));
}

TEST_F(ViewButtons, RefreshRedraws) {
  ASSERT_EQ(0, Enter(1, {10.0, 20.0}, legend_));
  EXPECT_TRUE(SamePicture(CrossesAt({}), Shown()));
  Press(kRefreshButton);
  EXPECT_TRUE(SamePicture(CrossesAt({{140, 80}}), Shown()));
}

TEST_F(ViewButtons, RotateByTenDegreesAtFirst) {
  Press(kRotateButton);
  EXPECT_EQ(10, Angle());
  Press(kRotateBackButton);
  EXPECT_EQ(0, Angle());
  Press(kRotateBackButton);
  EXPECT_EQ(350, Angle());
  Press(kRotateButton);
  EXPECT_EQ(0, Angle());
}

TEST_F(ViewButtons, RotateByTheStepOfTheLegendFile) {
  const struct {
    const char* header;
    int start;
    int forward;  // the angle after one press
    int back;
  } rows[] = {
      {" 25 CHK", 0, 25, 335},      {"  0 CHK", 7, 7, 7},       {"180 CHK", 0, 180, 180},
      {"400 CHK", 0, 40, 0},        {"400 CHK", 350, 350, 310},  // one turn is taken off, not two
      {"800 CHK", 0, 0, 0},         {"-30 CHK", 10, 340, 40},   {"2147483647 CHK", 5, 5, 5},
      {"-2147483648 CHK", 5, 5, 5},
  };
  for (const auto& [header, start, forward, back] : rows) {
    Tavix_Del();
    WriteBytes(LegendFile(), LegendBytesWithHeader(header));
    SetUp();
    Tavix_SetAng(start);
    Press(kRotateButton);
    EXPECT_EQ(forward, Angle()) << header << " from " << start;
    Tavix_SetAng(start);
    Press(kRotateBackButton);
    EXPECT_EQ(back, Angle()) << header << " from " << start;
  }
}

TEST_F(ViewButtons, RotatingHasTheWholeViewFittedAnew) {
  ASSERT_EQ(0, Enter(1, {0.0, 0.0}, legend_));
  ASSERT_EQ(0, Enter(2, {0.0, 110.0}, legend_));
  Press(kWholeViewButton);
  for (int press = 0; press < 9; ++press) Press(kRotateButton);
  ASSERT_EQ(90, Angle());
  Press(kWholeViewButton);  // 110 m stand upright in 160 pixels now
  EXPECT_TRUE(SamePicture(CrossesAt({{120, 10}, {120, 170}}), Shown()));
}

TEST_F(ViewButtons, TellTheHostNothing) {
  for (const ButtonId button : {kZoomInButton, kZoomOutButton, kWholeViewButton, kRefreshButton,
                                kRotateButton, kRotateBackButton}) {
    Press(button);
  }
  EXPECT_TRUE(host_.Commands().empty());
}

}  // namespace
}  // namespace tavix::test
