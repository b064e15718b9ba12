#include "view/view_state.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "tests/view/view_of.h"

namespace tavix {
namespace {

using test::ViewOf;

// A view of the given scale: one metre shown in that many pixels.
CViewState ViewAtScale(int width, int height, double scale) {
  CViewState view = ViewOf(width, height);
  EXPECT_FALSE(view.SetFitScale(1, 1.0, scale));
  return view;
}

TEST(ViewState, FreshViewIsUnscaledAndUnrotated) {
  const CViewState view;
  EXPECT_DOUBLE_EQ(1.0, view.Scale());
  EXPECT_DOUBLE_EQ(1.0, view.VScale());
  EXPECT_DOUBLE_EQ(1.0, view.Ratio());
  EXPECT_EQ(0, view.Angle());
  EXPECT_TRUE(view.NoViewYet());
}

TEST(ViewState, RefusesAnglesOutsideAFullTurn) {
  CViewState view;
  ASSERT_EQ(0, view.SetAngle(33));
  EXPECT_EQ(-1, view.SetAngle(360));
  EXPECT_EQ(-1, view.SetAngle(-1));
  EXPECT_EQ(33, view.Angle());
  EXPECT_EQ(0, view.SetAngle(359));
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

TEST(ViewState, GivesTheScreenSize) {
  const CViewState view = ViewOf(241, 181);
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

// Points at the border of the view, and views of any kind.
TEST(ViewState, NoCircleShowsOutsideOfTheGroundAroundIt) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
  constexpr int kLargest = 100;
  const double odd[] = {kInfinity, -kInfinity, kNoNumber, 0.0, -0.0, 1e300, -1e-300, 5e-324};
  std::mt19937 random(31);
  const auto between = [&](double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  };
  const auto any = [&](double usual) {
    return random() % 20 == 0 ? odd[random() % std::size(odd)] : usual;
  };
  int shown = 0;
  int outside = 0;
  for (int i = 0; i < 4000; ++i) {
    const int width = static_cast<int>(random() % 2000);
    const int height = static_cast<int>(random() % 1500);
    CViewState view;
    if (random() % 8 != 0) view.SetScreenSize(width, height);
    view.SetRatio(any(random() % 3 == 0 ? between(-4, 4) : 1.0));
    view.SetCentre({any(between(-1e6, 1e6)), any(between(-1e6, 1e6))});
    ASSERT_EQ(0, view.SetAngle(static_cast<int>(random() % 360)));
    view.ZoomOut(any(std::exp(between(-11, 700 * between(0, 1)))));
    const GroundArea area = view.GroundAround(kLargest);
    for (int k = 0; k < 50; ++k) {
      const double reach = random() % 4 == 0 ? 3.0 : 1.3;
      const GroundPoint at{any(area.centre.north + area.north * between(-reach, reach)),
                           any(area.centre.east + area.east * between(-reach, reach))};
      const int size = static_cast<int>(random() % (2 * kLargest + 1)) - kLargest;
      ScreenPoint ignored;
      const bool shows = view.CircleOnScreen(at, view.PixelsToLength(size), ignored);
      const bool touches = area.Touches(at);
      ASSERT_TRUE(touches || !shows) << i << ": " << at.north << ' ' << at.east << ' ' << size;
      shown += shows ? 1 : 0;
      outside += touches ? 0 : 1;
    }
  }
  EXPECT_LT(10000, shown);
  EXPECT_LT(10000, outside);
}

TEST(ViewState, NoSegmentShowsThatIsOutOfViewForCertain) {
  constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
  const double odd[] = {1e300, -1e300, 1e15, -3e9, kNoNumber, -0.0, 5e-324, 0.0};
  std::mt19937 random(32);
  const auto between = [&](double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  };
  const auto any = [&](double usual) {
    return random() % 30 == 0 ? odd[random() % std::size(odd)] : usual;
  };
  int shown = 0;
  int held_back = 0;
  for (int i = 0; i < 4000; ++i) {
    CViewState view;
    view.SetScreenSize(static_cast<int>(random() % 2000), static_cast<int>(random() % 1500));
    view.SetRatio(any(random() % 3 == 0 ? between(-4, 4) : 1.0));
    view.SetCentre({any(between(-1e6, 1e6)), any(between(-1e6, 1e6))});
    ASSERT_EQ(0, view.SetAngle(static_cast<int>(random() % 360)));
    view.ZoomOut(any(std::exp(between(-11, 700 * between(0, 1)))));
    const SegmentSieve sieve = view.OutOfView();
    for (int k = 0; k < 50; ++k) {
      const double reach = random() % 8 == 0 ? 1e9 : 1.5;
      const auto some_end = [&] {
        const double north = sieve.view.centre.north + sieve.view.north * between(-reach, reach);
        const double east = sieve.view.centre.east + sieve.view.east * between(-reach, reach);
        return GroundPoint{any(north), any(east)};
      };
      const GroundPoint start = some_end();
      const GroundPoint end = some_end();
      ScreenSegment ignored;
      const bool shows = view.ClipGroundSegment(start, end, ignored);
      ASSERT_FALSE(shows && sieve.HoldsBack(start, end)) << i << ' ' << k;
      shown += shows ? 1 : 0;
      held_back += sieve.HoldsBack(start, end) ? 1 : 0;
    }
  }
  EXPECT_LT(10000, shown);
  EXPECT_LT(10000, held_back);
}

// It must not be much larger than the view either.
TEST(ViewState, TheGroundAroundIsTheBoxThatHoldsTheView) {
  CViewState view = ViewAtScale(240, 180, 2.0);
  view.SetCentre({1000, 2000});
  EXPECT_FALSE(view.GroundAround(10).Touches(GroundPoint{1000 + 51.5, 2000}));
  EXPECT_TRUE(view.GroundAround(10).Touches(GroundPoint{1000 - 50, 2000 + 65}));
  EXPECT_FALSE(view.GroundAround(10).Touches(GroundPoint{1000, 2000 - 66.5}));
  ASSERT_EQ(0, view.SetAngle(90));
  EXPECT_FALSE(view.GroundAround(10).Touches(GroundPoint{1000 - 66.5, 2000}));
  EXPECT_TRUE(view.GroundAround(10).Touches(GroundPoint{1000 + 65, 2000 - 50}));
}

}  // namespace
}  // namespace tavix
