#include <tavix/tavix.h>

#include <cmath>

#include "tests/support/picture_compare.h"
#include "tests/support/plot_input.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"
#include "tests/support/raw_overlays.h"

namespace tavix::test {
namespace {

class PaperFrame : public PlotTest {
 protected:
  // A sheet 0.297 m high and 0.21 m wide.
  static void SetA4() { EXPECT_EQ(0, Tavix_SetWak(1, 254, 2970, 254, 2100)); }

  static Ground Origin() {
    Ground origin{};
    EXPECT_EQ(0, Tavix_GetWakGen(&origin.x, &origin.y));
    return origin;
  }

  static int Scale() {
    int n = -1;
    EXPECT_EQ(0, Tavix_GetWakScl(&n));
    return n;
  }

  static void ExpectOrigin(double x, double y) {
    EXPECT_NEAR(x, Origin().x, 1e-9);
    EXPECT_NEAR(y, Origin().y, 1e-9);
  }

  testing::AssertionResult ShowsFrame(int left, int top, int right, int bottom) {
    RawCanvas canvas(Window());
    DrawRawFrame(canvas.Dc(), left, top, right, bottom);
    return SamePicture(canvas.Take(), Redrawn());
  }

  testing::AssertionResult ShowsNothing() {
    const RawCanvas canvas(Window());
    return SamePicture(canvas.Take(), Redrawn());
  }
};

TEST_F(PaperFrame, IsLaidOutWhereTheHeightOrTheWidthLimits) {
  const struct {
    int width;
    int height;
    int height_units;
    int width_units;
    RECT frame;
  } rows[] = {{220, 180, 2970, 2100, {49, 5, 169, 175}},  // w' = 120.2
              {220, 180, 2100, 2970, {5, 15, 215, 163}},  // h' = 210 * 0.21 / 0.297 = 148.48
              {200, 200, 1000, 1003, {4, 5, 194, 195}},   // w' = 190.57, left = 4.7
              {181, 91, 1000, 2003, {9, 5, 171, 86}},     // w' = 162.24, left = 9.4
              {100, 180, 2970, 2100, {5, 26, 95, 153}}};  // h' = 127.28, top = 26.35
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.width << " x " << row.height);
    ASSERT_NO_FATAL_FAILURE(MakePlot(row.width, row.height));
    EXPECT_EQ(0, Tavix_SetWak(1, 254, row.height_units, 254, row.width_units));
    Tavix_WakDsp(1);
    EXPECT_TRUE(ShowsFrame(row.frame.left, row.frame.top, row.frame.right, row.frame.bottom));
    Tavix_Del();
  }
}

TEST_F(PaperFrame, ShowsOnlyWhileItIsOnAndShown) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(220, 180));
  EXPECT_TRUE(ShowsNothing());
  EXPECT_EQ(0, Tavix_WakDsp(1));
  EXPECT_TRUE(ShowsNothing());  // shown, but off
  SetA4();
  EXPECT_TRUE(ShowsFrame(49, 5, 169, 175));
  EXPECT_EQ(0, Tavix_WakDsp(0));
  EXPECT_TRUE(ShowsNothing());
  Tavix_WakDsp(1);
  EXPECT_EQ(0, Tavix_SetWak(0, 254, 2970, 254, 2100));
  EXPECT_TRUE(ShowsNothing());
}

TEST_F(PaperFrame, IsHiddenAtFirst) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(220, 180));
  SetA4();
  EXPECT_TRUE(ShowsNothing());
}

TEST_F(PaperFrame, ItsCallsAskForNoPaint) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(220, 180));
  SetA4();
  Tavix_WakDsp(1);
  Tavix_SetWakScl(500);
  Tavix_SetWakGen(10, 20);
  Tavix_SclBarDsp(1);
  EXPECT_FALSE(AwaitsPaint());
}

TEST_F(PaperFrame, RefusesWhileItIsOff) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(220, 180));
  int n = 77;
  Ground origin{7, 8};
  EXPECT_EQ(-1, Tavix_SetWakScl(500));
  EXPECT_EQ(-1, Tavix_GetWakScl(&n));
  EXPECT_EQ(77, n);
  EXPECT_EQ(-1, Tavix_SetWakGen(1, 2));
  EXPECT_EQ(-1, Tavix_GetWakGen(&origin.x, &origin.y));
  EXPECT_EQ(0.0, origin.x);
  EXPECT_EQ(0.0, origin.y);
}

TEST_F(PaperFrame, RefusesAScaleBelowOne) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(220, 180));
  SetA4();
  EXPECT_EQ(0, Tavix_SetWakScl(250));
  EXPECT_EQ(-1, Tavix_SetWakScl(0));
  EXPECT_EQ(-1, Tavix_SetWakScl(-5));
  EXPECT_EQ(250, Scale());
}

TEST_F(PaperFrame, BeginsWithTheGroundUnderIt) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(220, 180));
  SetA4();
  ExpectOrigin(90 - 175, 49 - 110);
  // 170 pixels are 170 m of ground on 0.297 m of paper: 1:572.39
  EXPECT_EQ(572, Scale());
}

TEST_F(PaperFrame, TellsTheScaleItWasGiven) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(220, 180));
  SetA4();
  for (const int n : {1, 2, 3, 49, 250, 500, 1000, 2500, 12345}) {
    EXPECT_EQ(0, Tavix_SetWakScl(n));
    EXPECT_EQ(static_cast<int>(1.0 / (1.0 / n)), Scale()) << n;
  }
}

TEST_F(PaperFrame, KeepsItsOriginUnderANewScale) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(220, 180));
  SetA4();
  Tavix_SetWakGen(1000, 2000);
  ExpectOrigin(1000, 2000);
  EXPECT_EQ(0, Tavix_SetWakScl(1000));
  ExpectOrigin(1000, 2000);
  Tavix_Drw(1);                            // the origin follows from the view again
  const double pixel = 0.21 * 1000 / 120;  // ground under one, metres
  // The middle of the frame stays half a pixel beside the middle of the window.
  EXPECT_NEAR(1000, Origin().x, pixel);
  EXPECT_NEAR(2000, Origin().y, 1.01 * pixel);
}

TEST_F(PaperFrame, MovesItsCornerOntoAnOrigin) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(220, 180));
  SetA4();
  EXPECT_EQ(0, Tavix_SetWakGen(0, 0));
  ExpectOrigin(0, 0);
  int visible = 0;
  Tavix_ChkCrd(-4, -48, &visible);  // 5 pixels below and 49 to the left are in the window
  EXPECT_EQ(1, visible);
  Tavix_ChkCrd(-8, 0, &visible);
  EXPECT_EQ(0, visible);
  EXPECT_EQ(572, Scale());
}

TEST_F(PaperFrame, FollowsPansAndZooms) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(220, 180));
  SetA4();
  Tavix_Pan(100, 200);
  ExpectOrigin(100 + 90 - 175, 200 + 49 - 110);
  EXPECT_EQ(572, Scale());
  Tavix_Zom(0, 0, 90, 110);  // 2 pixels per metre about (45, 55)
  ExpectOrigin(45 + (90 - 175) / 2.0, 55 + (49 - 110) / 2.0);
}

TEST_F(PaperFrame, TheHostsZoomsKeepTheScaleThatIsTold) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(220, 180));
  SetA4();
  Tavix_Zom(0, 0, 90, 110);
  EXPECT_EQ(572, Scale());
  Tavix_Zom1(0, 0, 45);
  EXPECT_EQ(572, Scale());
}

TEST_F(PaperFrame, AFitUsesTheFrameAndTellsTheNewScale) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(220, 180));
  SetA4();
  Enter(1, {0, 0}, 1);
  Enter(2, {100, 50}, 1);
  Tavix_Drw(0);
  // 120 x 170 pixels, 50 x 100 m: 120 / 170 > 50 / 100, so (170 - 20) / 100 pixels per metre
  ExpectOrigin(50 + (90 - 175) / 1.5, 25 + (49 - 110) / 1.5);
  EXPECT_EQ(static_cast<int>(170 / 1.5 / 0.297), Scale());
}

TEST_F(PaperFrame, TheButtonsTellTheNewScale) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(220, 180));
  SetA4();
  Enter(1, {0, 0}, 1);
  Enter(2, {100, 50}, 1);
  const struct {
    ButtonId button;
    double pixels_per_metre;               // afterwards
  } rows[] = {{kWholeViewButton, 1.5},     // whole: fitted into the frame, as above
              {kZoomInButton, 1.5 * 1.5},  // zoom in
              {kZoomOutButton, 1.5},       // zoom out
              {kZoomOutButton, 1.0},
              {kWholeViewButton, 1.5}};  // whole: back to the view that was fitted
  for (const auto& [button, pixels_per_metre] : rows) {
    Press(button);
    EXPECT_EQ(static_cast<int>(170 / pixels_per_metre / 0.297), Scale()) << button;
    ExpectOrigin(50 + (90 - 175) / pixels_per_metre, 25 + (49 - 110) / pixels_per_metre);
  }
}

TEST_F(PaperFrame, LeftOffItKeepsNoHoldOnTheFit) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(220, 180));
  SetA4();
  Tavix_SetWak(0, 0, 0, 0, 0);
  Enter(1, {0, 0}, 1);
  Enter(2, {100, 50}, 1);
  Tavix_Drw(0);  // 1.6 pixels per metre about (50, 25), where with the frame it would be 1.5
  SetA4();
  ExpectOrigin(50 + (90 - 175) / 1.6, 25 + (49 - 110) / 1.6);
}

TEST_F(PaperFrame, ASheetOfNoSizeIsNotGuardedAndNotFatal) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(220, 180));
  Tavix_WakDsp(1);
  const int sheets[][4] = {{0, 0, 0, 0}, {0, 1, 1, 1},  {1, 0, 1, 1},  {1, 1, 0, 1},
                           {1, 1, 1, 0}, {-1, 1, 1, 1}, {1, 1, -1, 1}, {INT_MAX, 1, 1, INT_MAX}};
  for (const auto& sheet : sheets) {
    EXPECT_EQ(0, Tavix_SetWak(1, sheet[0], sheet[1], sheet[2], sheet[3]));
    EXPECT_EQ(0, Tavix_SetWakScl(100));
    EXPECT_EQ(0, Tavix_SetWakGen(1, 1));
    Scale();
    Redrawn();
  }
}

}  // namespace
}  // namespace tavix::test
