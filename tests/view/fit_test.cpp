// Zoom extents, zoom window, and what they do to the extents and the view before.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/case_file.h"
#include "tests/view/view_of.h"
#include "view/view_state.h"

namespace tavix {
namespace {

using test::Case;
using test::ViewOf;

constexpr GroundPoint kCentre{500, 600};

// A box is east,north in a case file.
GroundSize BoxOf(const Case& given) {
  const GroundPoint box = given.Ground("box");
  return {box.north, box.east};
}

void ExpectScale(const Case& given, const CViewState& view, bool cut) {
  given.Expect({view.Scale()}, cut ? "cut" : "");
  EXPECT_EQ(view.Scale() * view.Ratio(), view.VScale());
  EXPECT_EQ(kCentre.north, view.Centre().north);
  EXPECT_EQ(kCentre.east, view.Centre().east);
}

void ExpectExtents(const Case& given, const CViewState& view, bool cut) {
  ExpectScale(given, view, cut);
  EXPECT_EQ(view.Scale(), view.ExtentsScale());
  EXPECT_FALSE(view.NoViewYet());
}

void ZoomExtents(const Case& given) {
  CViewState view = ViewOf(given);
  const bool cut = view.FitToArea(BoxOf(given), kCentre);
  ExpectExtents(given, view, cut);
}

void FitRect(const Case& given) {
  CViewState view = ViewOf(given);
  const ScreenPoint rect = given.Screen("rect");
  const bool cut = view.FitToRect(rect.x, rect.y, BoxOf(given), kCentre);
  ExpectExtents(given, view, cut);
  const ScreenPoint screen = given.Screen("screen");
  EXPECT_EQ((ScreenPoint{screen.x / 2, screen.y / 2}), view.GroundToScreen(kCentre));
}

void ZoomWindow(const Case& given) {
  CViewState view = ViewOf(given);
  const bool cut = view.ZoomToArea(BoxOf(given), kCentre);
  ExpectScale(given, view, cut);
}

void RotatedBox(const Case& given) {
  CViewState view = ViewOf(given);
  const GroundSize box = view.RotatedExtent(BoxOf(given));
  given.Expect({box.east, box.north});
  EXPECT_EQ(0, view.SetAngle((360 - view.Angle()) % 360));
  const GroundSize back = view.RotatedExtent(box);
  given.ExpectBack({back.east, back.north}, {BoxOf(given).east, BoxOf(given).north});
}

TEST(Fit, KeepsToItsCases) {
  test::RunCaseFile("fit.txt", {{"zoom-extents", ZoomExtents},
                                {"fit-rect", FitRect},
                                {"zoom-window", ZoomWindow},
                                {"rotated-box", RotatedBox}});
}

TEST(FitToArea, TheFirstFitIsItsOwnPreviousView) {
  CViewState view = ViewOf(240, 180);
  view.SetCentre({7, 8});
  EXPECT_FALSE(view.FitToArea({100, 50}, kCentre));
  view.ToggleExtents();
  EXPECT_EQ(2.2, view.Scale());
  EXPECT_EQ(view.Centre().north, kCentre.north);
  EXPECT_EQ(view.Centre().east, kCentre.east);
}

TEST(FitToArea, ALaterFitRemembersTheViewBefore) {
  CViewState view = ViewOf(240, 180);
  EXPECT_FALSE(view.FitToArea({100, 50}, kCentre));
  EXPECT_FALSE(view.FitToArea({220, 10}, {-3, -4}));
  EXPECT_EQ(1.0, view.ExtentsScale());
  view.ToggleExtents();
  EXPECT_EQ(2.2, view.Scale());
  EXPECT_EQ(view.Centre().north, kCentre.north);
  EXPECT_EQ(view.Centre().east, kCentre.east);
  EXPECT_EQ(1.0, view.ExtentsScale());
  view.ToggleExtents();
  EXPECT_EQ(1.0, view.Scale());
  EXPECT_EQ(-3, view.Centre().north);
}

TEST(ZoomToArea, LeavesTheExtentsAlone) {
  CViewState view = ViewOf(240, 180);
  EXPECT_FALSE(view.FitToArea({100, 50}, kCentre));
  EXPECT_FALSE(view.ZoomToArea({100, 50}, {1, 2}));
  EXPECT_EQ(2.4, view.Scale());
  EXPECT_EQ(2.2, view.ExtentsScale());
  view.ToggleExtents();
  EXPECT_EQ(2.2, view.Scale());
  EXPECT_EQ(view.Centre().north, kCentre.north);
  view.ToggleExtents();
  EXPECT_EQ(2.4, view.Scale());
  EXPECT_EQ(1, view.Centre().north);
}

TEST(ZoomToArea, BeforeTheFirstFitThereIsStillNoView) {
  CViewState view = ViewOf(240, 180);
  EXPECT_FALSE(view.ZoomToArea({100, 50}, {1, 2}));
  EXPECT_TRUE(view.NoViewYet());
  EXPECT_EQ(1.0, view.ExtentsScale());
}

TEST(ZoomToArea, RemembersTheViewBefore) {
  CViewState view = ViewOf(240, 180);
  EXPECT_FALSE(view.FitToArea({100, 50}, kCentre));
  view.SetCentre({510, 610});
  EXPECT_FALSE(view.ZoomToArea({10, 10}, kCentre));
  EXPECT_FALSE(view.SetFitScale(22, 10, 1.0));  // at the scale of the extents again
  view.ToggleExtents();
  EXPECT_EQ(510, view.Centre().north);  // what the zoom left, not the fit
}

TEST(RotatedExtent, IsTheBoxAroundTheTurnedBox) {
  CViewState view;
  constexpr double kRadiansPerDegree = 0.017453292519943295;
  for (int angle = 0; angle < 360; ++angle) {
    ASSERT_EQ(0, view.SetAngle(angle));
    const double c = std::fabs(std::cos(angle * kRadiansPerDegree));
    const double s = std::fabs(std::sin(angle * kRadiansPerDegree));
    for (const GroundSize size : {GroundSize{100, 50}, {50, 100}, {0, 30}, {-100, 50}, {-2, -3}}) {
      const GroundSize box = view.RotatedExtent(size);
      EXPECT_NEAR(box.east, std::fabs(size.east) * c + std::fabs(size.north) * s, 1e-12) << angle;
      EXPECT_NEAR(box.north, std::fabs(size.east) * s + std::fabs(size.north) * c, 1e-12) << angle;
    }
  }
}

TEST(ToggleExtents, PanningAndTogglingTwiceComesBackToThePannedView) {
  CViewState view = ViewOf(240, 180);
  EXPECT_FALSE(view.FitToArea({100, 50}, kCentre));
  view.SetCentre({700, 800});
  EXPECT_EQ(2.2, view.Scale());
  view.ToggleExtents();
  EXPECT_EQ(view.Centre().north, kCentre.north);
  EXPECT_EQ(view.Centre().east, kCentre.east);
  view.ToggleExtents();
  EXPECT_EQ(700, view.Centre().north);
  EXPECT_EQ(800, view.Centre().east);
}

}  // namespace
}  // namespace tavix
