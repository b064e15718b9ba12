#include "view/view_state.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tavix {
namespace {

CViewState ViewOf(int width, int height) {
  CViewState view;
  view.SetScreenSize(width, height);
  return view;
}

// A view of the given scale: one metre shown in that many pixels.
CViewState ViewAtScale(int width, int height, double scale) {
  CViewState view = ViewOf(width, height);
  EXPECT_FALSE(view.SetFitScale(1, 1.0, scale));
  return view;
}

TEST(ViewState, FreshViewShowsTheOriginAtPixelTen) {
  const CViewState view;
  EXPECT_EQ((ScreenPoint{10, 10}), view.GroundToScreen({0, 0}));
  EXPECT_DOUBLE_EQ(1.0, view.Scale());
  EXPECT_DOUBLE_EQ(1.0, view.VScale());
  EXPECT_DOUBLE_EQ(1.0, view.Ratio());
  EXPECT_EQ(0, view.Angle());
  EXPECT_TRUE(view.NoViewYet());
}

TEST(ViewState, EastIsRightAndNorthIsUp) {
  CViewState view = ViewAtScale(240, 180, 2.0);
  view.SetCentre({1000, 2000});
  EXPECT_EQ((ScreenPoint{140, 80}), view.GroundToScreen({1005, 2010}));
}

TEST(ViewState, TurnsThePictureClockwise) {
  CViewState view = ViewOf(240, 180);
  const GroundPoint north{10, 0};
  EXPECT_EQ((ScreenPoint{120, 80}), view.GroundToScreen(north));
  ASSERT_EQ(0, view.SetAngle(90));
  EXPECT_EQ((ScreenPoint{130, 90}), view.GroundToScreen(north));
  ASSERT_EQ(0, view.SetAngle(180));
  EXPECT_EQ((ScreenPoint{120, 100}), view.GroundToScreen(north));
  ASSERT_EQ(0, view.SetAngle(270));
  EXPECT_EQ((ScreenPoint{110, 90}), view.GroundToScreen(north));
}

TEST(ViewState, RightAnglesAreExact) {
  CViewState view;
  const struct {
    int angle;
    double cos_a;
    double sin_a;
  } rows[] = {{0, 1, 0}, {90, 0, 1}, {180, -1, 0}, {270, 0, -1}};
  for (const auto& row : rows) {
    ASSERT_EQ(0, view.SetAngle(row.angle));
    EXPECT_EQ(row.cos_a, view.CosA()) << row.angle;
    EXPECT_EQ(row.sin_a, view.SinA()) << row.angle;
  }
}

TEST(ViewState, RefusesAnglesOutsideAFullTurn) {
  CViewState view;
  ASSERT_EQ(0, view.SetAngle(33));
  EXPECT_EQ(-1, view.SetAngle(360));
  EXPECT_EQ(-1, view.SetAngle(-1));
  EXPECT_EQ(33, view.Angle());
  EXPECT_EQ(0, view.SetAngle(359));
}

TEST(ViewState, RotatingByAStepTakesOffOneTurnOnly) {
  const struct {
    int from;
    int by;
    int result;
    int angle;
  } rows[] = {
      {10, -30, 0, 340}, {0, 400, 0, 40},  {0, 800, -1, 0},        {350, 10, 0, 0},
      {0, -360, 0, 0},   {0, -361, -1, 0}, {5, 2147483647, -1, 5}, {5, -2147483647 - 1, -1, 5}};
  for (const auto& row : rows) {
    CViewState view;
    ASSERT_EQ(0, view.SetAngle(row.from));
    EXPECT_EQ(row.result, view.RotateBy(row.by)) << row.from << " by " << row.by;
    EXPECT_EQ(row.angle, view.Angle()) << row.from << " by " << row.by;
  }
}

TEST(ViewState, PixelsAreTruncatedTowardZero) {
  const CViewState view = ViewOf(240, 180);
  EXPECT_EQ((ScreenPoint{0, 0}), view.GroundToScreen({90, -120.9}));  // 0.9 left of the origin
  EXPECT_EQ((ScreenPoint{-1, 0}), view.GroundToScreen({90, -121.1}));
  EXPECT_EQ((ScreenPoint{0, 0}), view.GroundToScreen({90.9, -120}));
}

TEST(ViewState, FarPointsAreClampedAndNearOnesAreNot) {
  const CViewState view = ViewOf(0, 0);
  constexpr int kMax = std::numeric_limits<int>::max();
  constexpr int kMin = std::numeric_limits<int>::min();
  EXPECT_EQ((ScreenPoint{kMax, 0}), view.GroundToScreen({0, 2147483647.0}));
  EXPECT_EQ((ScreenPoint{kMax - 1, 0}), view.GroundToScreen({0, 2147483646.0}));
  EXPECT_EQ((ScreenPoint{kMax, 0}), view.GroundToScreen({0, 1e300}));
  EXPECT_EQ((ScreenPoint{kMin, kMin}), view.GroundToScreen({1e300, -1e300}));
  EXPECT_EQ((ScreenPoint{kMin, 0}), view.GroundToScreen({0, -2147483648.0}));
  ScreenPoint at;
  EXPECT_FALSE(view.CircleOnScreen({std::nan(""), 0}, 1.0, at));
  EXPECT_FALSE(view.CircleOnScreen({0, 1e300}, 1.0, at));
  EXPECT_TRUE(view.CircleOnScreen({0, 1e9}, 1e10, at));  // its rim reaches the screen
}

TEST(ViewState, ScreenToGroundUndoesGroundToScreen) {
  for (const int angle : {0, 15, 90, 137, 180, 270, 359}) {
    CViewState view = ViewAtScale(240, 320, 3.7);
    view.SetRatio(2.5);
    view.SetCentre({-42000.5, 25900.25});
    ASSERT_EQ(0, view.SetAngle(angle));
    for (const ScreenPoint pixel : {ScreenPoint{0, 0}, {239, 319}, {17, 301}, {120, 160}}) {
      const GroundPoint ground = view.ScreenToGround(pixel);
      const RealScreenPoint back = view.GroundToRealScreen(ground);
      EXPECT_NEAR(back.x, pixel.x, 1e-6) << angle;
      EXPECT_NEAR(back.y, pixel.y, 1e-6) << angle;
    }
  }
}

TEST(ViewState, ZoomInStopsAtTheCapAndSaysSo) {
  CViewState view = ViewAtScale(240, 180, 80000.0);
  EXPECT_TRUE(view.ZoomIn(1.5));
  EXPECT_EQ(100000.0, view.Scale());
  EXPECT_EQ(100000.0, view.VScale());
  CViewState exact = ViewAtScale(240, 180, 50000.0);
  EXPECT_FALSE(exact.ZoomIn(2.0));  // the cap itself is allowed
  EXPECT_EQ(100000.0, exact.Scale());
}

TEST(ViewState, ZoomOutHasNoLimit) {
  CViewState view = ViewOf(240, 180);
  for (int i = 0; i < 200; ++i) view.ZoomOut(1.5);
  EXPECT_GT(view.Scale(), 0.0);
  EXPECT_LT(view.Scale(), 1e-30);
  EXPECT_EQ(view.VScale(), view.Scale());
}

TEST(ViewState, VerticalScaleFollowsTheRatio) {
  CViewState view = ViewAtScale(240, 180, 2.0);
  view.SetRatio(3.0);
  EXPECT_DOUBLE_EQ(6.0, view.VScale());
  EXPECT_FALSE(view.ZoomIn(1.5));
  EXPECT_DOUBLE_EQ(9.0, view.VScale());
  view.ZoomOut(3.0);
  EXPECT_DOUBLE_EQ(3.0, view.VScale());
  EXPECT_EQ(30, view.LengthToPixelsAxis(true, 10.0));
  EXPECT_EQ(10, view.LengthToPixelsAxis(false, 10.0));
  EXPECT_DOUBLE_EQ(10.0, view.PixelsToLengthAxis(true, 30));
  EXPECT_DOUBLE_EQ(30.0, view.PixelsToLengthAxis(false, 30));
  EXPECT_EQ(2, view.LengthToPixels(2.9));
  EXPECT_EQ(-2, view.LengthToPixels(-2.9));
}

TEST(ViewState, FirstFitScaleIsItsOwnPreviousScale) {
  CViewState view = ViewOf(240, 180);
  EXPECT_FALSE(view.SetFitScale(200, 100.0, 0.5));
  EXPECT_DOUBLE_EQ(1.0, view.Scale());
  EXPECT_DOUBLE_EQ(1.0, view.ExtentsScale());
  EXPECT_FALSE(view.NoViewYet());
  view.ToggleExtents();  // shows the extents: goes to the view before, which is the same
  EXPECT_DOUBLE_EQ(1.0, view.Scale());
  EXPECT_FALSE(view.SetFitScale(200, 100.0, 2.0));
  EXPECT_DOUBLE_EQ(4.0, view.ExtentsScale());
  view.ToggleExtents();
  EXPECT_DOUBLE_EQ(1.0, view.Scale());
  EXPECT_TRUE(view.SetFitScale(200, 0.001, 1.0));
  EXPECT_EQ(100000.0, view.ExtentsScale());
}

TEST(ViewState, TogglingTheExtentsTwiceReturnsToTheStart) {
  CViewState view = ViewOf(240, 180);
  EXPECT_FALSE(view.FitToArea({100, 50}, {500, 600}));
  EXPECT_FALSE(view.ZoomIn(1.5));
  view.SetCentre({510, 610});
  view.ToggleExtents();
  EXPECT_DOUBLE_EQ(2.2, view.Scale());
  EXPECT_DOUBLE_EQ(500, view.Centre().north);
  view.ToggleExtents();
  EXPECT_DOUBLE_EQ(2.2 * 1.5, view.Scale());
  EXPECT_DOUBLE_EQ(510, view.Centre().north);
  EXPECT_DOUBLE_EQ(610, view.Centre().east);
}

TEST(ViewState, NearlyTheExtentsCountsAsTheExtentsStrictlyBelowTheTolerance) {
  CViewState view = ViewOf(240, 180);
  EXPECT_FALSE(view.FitToArea({100, 50}, {0, 0}));
  view.SetCentre({0.00001, 0});  // exactly the tolerance: not the extents
  view.ToggleExtents();
  EXPECT_EQ(0.0, view.Centre().north);
  view.SetCentre({0.000009, 0});  // below it: the toggle goes back
  view.ToggleExtents();
  EXPECT_EQ(0.0, view.Centre().north);
}

TEST(ViewState, CircleTouchesTheClientAreaBordersIncluded) {
  const CViewState view = ViewOf(240, 180);
  ScreenPoint at{-7, -7};
  const struct {
    GroundPoint centre;
    double radius;
    bool visible;
  } rows[] = {{{0, 0}, 0, true},      {{90, -120}, 0, true},  {{-90, 120}, 0, true},
              {{-91, 120}, 0, false}, {{-90, 121}, 0, false}, {{0, -125}, 5, true},
              {{0, -126}, 5, false},  {{0, 125}, 5, true},    {{0, 126}, 5, false},
              {{95, 0}, 5, true},     {{96, 0}, 5, false},    {{-95, 0}, 5, true},
              {{-96, 0}, 5, false}};
  for (const auto& row : rows) {
    at = {-7, -7};
    EXPECT_EQ(row.visible, view.CircleOnScreen(row.centre, row.radius, at))
        << row.centre.north << ' ' << row.centre.east;
    EXPECT_EQ(at == (ScreenPoint{-7, -7}), !row.visible);
  }
}

TEST(ViewState, ClippingInPlaceMovesTheGroundEndsToTheClippedPixels) {
  const CViewState view = ViewOf(240, 180);
  GroundPoint start{0, 0};
  GroundPoint end{0, 1000};
  ScreenSegment clipped;
  ASSERT_TRUE(view.ClipGroundSegmentInPlace(start, end, clipped));
  EXPECT_EQ((ScreenPoint{120, 90}), clipped.start);
  EXPECT_EQ((ScreenPoint{240, 90}), clipped.end);
  EXPECT_DOUBLE_EQ(0.0, start.east);
  EXPECT_DOUBLE_EQ(120.0, end.east);
  GroundPoint left{0, -500};
  GroundPoint further{0, -400};
  EXPECT_FALSE(view.ClipGroundSegmentInPlace(left, further, clipped));
  EXPECT_EQ(-500, left.east);
}

TEST(ViewState, HalvesOfTheScreenSizeAreWhole) {
  CViewState view = ViewOf(241, 181);
  EXPECT_EQ((ScreenPoint{120, 90}), view.GroundToScreen({0, 0}));
  int width = 0;
  int height = 0;
  view.GetScreenSize(&width, &height);
  EXPECT_EQ(241, width);
  EXPECT_EQ(181, height);
}

TEST(ViewState, FreshViewIsTenPixelsWideAndHigh) {
  int width = 0;
  int height = 0;
  CViewState().GetScreenSize(&width, &height);
  EXPECT_EQ(10, width);
  EXPECT_EQ(10, height);
}

TEST(ViewState, OtherAnglesAreThoseOfTheCosineAndSine) {
  CViewState view;
  for (int angle = 0; angle < 360; ++angle) {
    if (angle % 90 == 0) continue;
    ASSERT_EQ(0, view.SetAngle(angle));
    EXPECT_EQ(view.Angle(), angle);
    EXPECT_EQ(view.CosA(), std::cos(angle * 0.017453292519943295)) << angle;
    EXPECT_EQ(view.SinA(), std::sin(angle * 0.017453292519943295)) << angle;
  }
}

TEST(ViewState, ZoomingRemembersTheScaleBefore) {
  CViewState view = ViewAtScale(240, 180, 2.0);
  EXPECT_FALSE(view.ZoomIn(1.5));
  EXPECT_FALSE(
      view.SetFitScale(5, 1.0, 1.0));  // that of the extents is 5 now, and the one before 3
  view.ToggleExtents();
  EXPECT_DOUBLE_EQ(3.0, view.Scale());
  view.ZoomOut(3.0);
  EXPECT_DOUBLE_EQ(1.0, view.Scale());
  view.ToggleExtents();  // goes to the extents
  EXPECT_DOUBLE_EQ(5.0, view.Scale());
  view.ToggleExtents();
  EXPECT_DOUBLE_EQ(1.0, view.Scale());
}

TEST(ViewState, ZoomedBackToTheExtentsTheToggleGoesToTheScaleBefore) {
  CViewState view = ViewAtScale(240, 180, 2.0);
  EXPECT_FALSE(view.ZoomIn(2.0));
  view.ZoomOut(2.0);  // the extents again; the scale before was 4
  view.ToggleExtents();
  EXPECT_DOUBLE_EQ(4.0, view.Scale());
}

TEST(ViewState, TheToggleKeepsTheVerticalScaleInStep) {
  CViewState view = ViewAtScale(240, 180, 2.0);
  EXPECT_FALSE(view.ZoomIn(2.0));
  view.SetRatio(3.0);
  view.ToggleExtents();
  EXPECT_DOUBLE_EQ(6.0, view.VScale());
  view.ToggleExtents();
  EXPECT_DOUBLE_EQ(12.0, view.VScale());
}

TEST(ViewState, AnyOneDifferenceIsNotTheExtents) {
  const struct {
    GroundPoint centre;
    double zoom;
  } rows[] = {{{0.00002, 0}, 1.0}, {{0, 0.00002}, 1.0}, {{0, 0}, 1.0001}};
  for (const auto& row : rows) {
    CViewState view = ViewOf(240, 180);
    EXPECT_FALSE(view.FitToArea({100, 50}, {0, 0}));
    view.SetCentre({900, 900});
    view.SetCentre(row.centre);  // the centre before is far away
    EXPECT_FALSE(view.ZoomIn(row.zoom));
    view.ToggleExtents();
    EXPECT_EQ(0.0, view.Centre().north) << row.zoom;
    EXPECT_EQ(0.0, view.Centre().east) << row.zoom;
    EXPECT_EQ(2.2, view.Scale()) << row.zoom;
  }
}

TEST(ViewState, ACutZoomStillRemembersTheScaleBefore) {
  CViewState view = ViewAtScale(240, 180, 80000.0);
  EXPECT_TRUE(view.ZoomIn(1.5));
  EXPECT_TRUE(view.SetFitScale(240, 0.0001, 1.0));
  view.ToggleExtents();  // the extents are at the cap, and so was the view before
  EXPECT_EQ(100000.0, view.Scale());
}

TEST(ViewState, ARatioThatIsNotFiniteIsCarriedAndHarmless) {
  CViewState view = ViewOf(240, 180);
  for (const double ratio : {std::numeric_limits<double>::infinity(), std::nan(""), 0.0}) {
    view.SetRatio(ratio);
    const ScreenPoint at = view.GroundToScreen({5, 7});
    const GroundPoint back = view.ScreenToGround({1, 2});
    EXPECT_EQ(at.x == 127, ratio == 0.0) << ratio;  // the rotation carries NaN into both
    EXPECT_DOUBLE_EQ(-119.0, back.east) << ratio;
    ScreenSegment clipped;
    const bool visible = view.ClipGroundSegment({0, 0}, {5, 7}, clipped);
    EXPECT_EQ(visible, ratio == 0.0) << ratio;
  }
  view.SetRatio(1.0);
  EXPECT_EQ((ScreenPoint{127, 85}), view.GroundToScreen({5, 7}));
}

TEST(ViewState, ACopyIsTheWholeView) {
  CViewState view = ViewOf(240, 180);
  EXPECT_FALSE(view.FitToArea({100, 50}, {500, 600}));
  view.SetRatio(2.0);
  EXPECT_FALSE(view.ZoomIn(1.5));
  view.SetCentre({510, 610});
  ASSERT_EQ(0, view.SetAngle(30));
  CViewState copy = view;
  EXPECT_FALSE(copy.NoViewYet());
  EXPECT_EQ(copy.GroundToScreen({512, 617}), view.GroundToScreen({512, 617}));
  EXPECT_EQ(copy.ScreenToGround({3, 4}).north, view.ScreenToGround({3, 4}).north);
  ScreenSegment of_copy;
  ScreenSegment of_view;
  ASSERT_TRUE(copy.ClipGroundSegment({510, 610}, {910, 910}, of_copy));
  ASSERT_TRUE(view.ClipGroundSegment({510, 610}, {910, 910}, of_view));
  EXPECT_EQ(of_copy.end, of_view.end);
  copy.ToggleExtents();
  EXPECT_EQ(2.2, copy.Scale());
  copy.ToggleExtents();
  EXPECT_EQ(copy.Scale(), view.Scale());
  EXPECT_EQ(510.0, copy.Centre().north);
}

}  // namespace
}  // namespace tavix
