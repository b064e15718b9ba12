// Zoom extents, zoom window, and what they do to the extents and the view before.
#include <gtest/gtest.h>

#include <cmath>

#include "view/view_state.h"

namespace tavix {
namespace {

constexpr GroundPoint kCentre{500, 600};

CViewState ViewOf(int width, int height) {
  CViewState view;
  view.SetScreenSize(width, height);
  return view;
}

struct BoxRow {
  const char* what;
  GroundSize size;
  double scale;
  bool cut;
};

TEST(FitToArea, LeavesAMarginOfTwentyPixels) {
  const BoxRow rows[] = {
      {"east limits", {100, 50}, 220.0 / 100, false},
      {"north limits", {100, 100}, 160.0 * (1.0 / 100), false},
      {"a point", {0, 0}, 1.0, false},
      {"nearly a point", {0.0000099, 0.0000099}, 1.0, false},
      {"a line to the east", {100, 0}, 220.0 / 100, false},
      {"a line to the north", {0, 50}, 160.0 / 50, false},
      {"a line just long enough to count", {0.00001, 0}, 100000.0, true},
      {"small", {0.001, 0.001}, 100000.0, true},
      {"both sizes negative", {-100, -50}, 1.0, false},
      {"east negative", {-100, 50}, 220.0 / 100, false},
      {"north negative", {100, -50}, 220.0 / 100, false},
      // 240 / 180 is less than 1.35, so east limits, although with the margin north would.
      {"between the proportions with and without margin", {135, 100}, 220.0 / 135, false}};
  for (const BoxRow& row : rows) {
    CViewState view = ViewOf(240, 180);
    EXPECT_EQ(row.cut, view.FitToArea(row.size, kCentre)) << row.what;
    EXPECT_EQ(row.scale, view.Scale()) << row.what;
    EXPECT_EQ(row.scale, view.VScale()) << row.what;
    EXPECT_EQ(row.scale, view.ExtentsScale()) << row.what;
    EXPECT_EQ(view.Centre().north, kCentre.north) << row.what;
    EXPECT_EQ(view.Centre().east, kCentre.east) << row.what;
    EXPECT_FALSE(view.NoViewYet()) << row.what;
  }
}

TEST(FitToArea, NorthLimitsWhereTheProportionsAreEqual) {
  CViewState view = ViewOf(200, 100);
  EXPECT_FALSE(view.FitToArea({200, 100}, kCentre));
  EXPECT_EQ(80 * (1.0 / 100), view.Scale());  // and not 180 / 200
  EXPECT_FALSE(view.ZoomToArea({200, 100}, kCentre));
  EXPECT_EQ(1.0, view.Scale());
}

TEST(FitToArea, TheCapItselfIsNoCut) {
  CViewState view = ViewOf(120, 120);
  EXPECT_FALSE(view.FitToArea({0.001, 0}, kCentre));
  EXPECT_EQ(100000.0, view.Scale());
}

TEST(FitToArea, CountsTheBoxTurnedByTheAngle) {
  CViewState view = ViewOf(240, 180);
  ASSERT_EQ(0, view.SetAngle(90));
  EXPECT_FALSE(view.FitToArea({100, 50}, kCentre));
  EXPECT_EQ(160 * (1.0 / 100), view.Scale());
  // A line to the east stands upright now: its east size has become nothing.
  EXPECT_FALSE(view.FitToArea({100, 0}, kCentre));
  EXPECT_EQ(160.0 / 100, view.Scale());
  ASSERT_EQ(0, view.SetAngle(45));
  EXPECT_FALSE(view.FitToArea({100, 0}, kCentre));
  EXPECT_NEAR(160 / (100 * std::sqrt(0.5)), view.Scale(), 1e-12);
}

TEST(FitToArea, TheRatioStretchesTheNorthSize) {
  CViewState view = ViewOf(240, 180);
  view.SetRatio(2.0);
  EXPECT_FALSE(view.FitToArea({100, 50}, kCentre));  // a square of 100
  EXPECT_EQ(160 * (1.0 / 100), view.Scale());
  EXPECT_EQ(view.VScale(), 2 * view.Scale());
  view.SetRatio(0.0);
  EXPECT_FALSE(view.FitToArea({100, 50}, kCentre));  // nothing left of the north size
  EXPECT_EQ(220.0 / 100, view.Scale());
  view.SetRatio(-1.0);
  EXPECT_FALSE(view.FitToArea({0, 50}, kCentre));  // counts as a box without size
  EXPECT_EQ(1.0, view.Scale());
  EXPECT_EQ(-1.0, view.VScale());
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

TEST(FitToRect, TakesTheGivenSizeInPlaceOfTheClientArea) {
  const struct {
    int width;
    int height;
    GroundSize size;
    double scale;
  } rows[] = {{120, 100, {100, 50}, 100.0 / 100},
              {120, 100, {50, 100}, 80 * (1.0 / 100)},
              {100, 80, {130, 100}, 80.0 / 130},  // 100 / 80 decides, and not 80 / 60
              {120, 100, {0, 50}, 80.0 / 50},
              {120, 100, {50, 0}, 100.0 / 50},
              {120, 100, {0, 0}, 1.0}};
  for (const auto& row : rows) {
    CViewState view = ViewOf(240, 180);
    EXPECT_FALSE(view.FitToRect(row.width, row.height, row.size, kCentre));
    EXPECT_EQ(row.scale, view.Scale());
    EXPECT_EQ(row.scale, view.ExtentsScale());
    EXPECT_EQ((ScreenPoint{120, 90}), view.GroundToScreen(kCentre));  // still mid client area
    EXPECT_FALSE(view.NoViewYet());
  }
}

TEST(ZoomToArea, FillsTheClientArea) {
  const BoxRow rows[] = {{"east limits", {100, 50}, 240.0 / 100, false},
                         {"north limits", {100, 100}, 180 * (1.0 / 100), false},
                         {"a tiny circle", {0.000002, 0.000002}, 1.0, false},
                         {"a line to the east", {100, 0}, 240.0 / 100, false},
                         {"a line to the north", {0, 50}, 180.0 / 50, false},
                         {"both corners swapped", {-100, -50}, 1.0, false},
                         {"east and west swapped", {-100, 50}, 240.0 / 100, false},
                         {"north and south swapped", {100, -100}, 180 * (1.0 / 100), false},
                         {"small", {0.001, 0.001}, 100000.0, true}};
  for (const BoxRow& row : rows) {
    CViewState view = ViewOf(240, 180);
    view.SetRatio(1.0);
    EXPECT_EQ(row.cut, view.ZoomToArea(row.size, kCentre)) << row.what;
    EXPECT_EQ(row.scale, view.Scale()) << row.what;
    EXPECT_EQ(row.scale, view.VScale()) << row.what;
    EXPECT_EQ(view.Centre().north, kCentre.north) << row.what;
    EXPECT_EQ(view.Centre().east, kCentre.east) << row.what;
  }
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

TEST(RotatedExtent, IsExactAtRightAngles) {
  CViewState view;
  const struct {
    int angle;
    GroundSize box;
  } rows[] = {{0, {100, 50}}, {90, {50, 100}}, {180, {100, 50}}, {270, {50, 100}}};
  for (const auto& row : rows) {
    ASSERT_EQ(0, view.SetAngle(row.angle));
    const GroundSize box = view.RotatedExtent({100, 50});
    EXPECT_EQ(row.box.east, box.east) << row.angle;
    EXPECT_EQ(row.box.north, box.north) << row.angle;
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
