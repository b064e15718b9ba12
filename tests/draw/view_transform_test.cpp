// Where points appear: angle, ratio and fit, against the same arithmetic written out here.
#include <tavix/tavix.h>

#include <cmath>
#include <vector>

#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"
#include "tests/support/raw_north_arrow.h"

namespace tavix::test {
namespace {

const PointLegend kCross{4, 9, 0, 0, 1, RGB(255, 0, 0)};

struct View {
  double scale = 1.0;
  double ratio = 1.0;
  int angle = 0;
  Ground centre{0.0, 0.0};
};

// The pixel of a ground point in a client area of this size.
POINT PixelOf(const View& view, int width, int height, Ground at) {
  const int cx = width / 2;
  const int cy = height / 2;
  const double dx = (at.y - view.centre.y) * view.scale + cx - cx;
  const double dy = (view.centre.x - at.x) * (view.scale * view.ratio) + cy - cy;
  double c = std::cos(view.angle * 0.017453292519943295);
  double s = std::sin(view.angle * 0.017453292519943295);
  if (view.angle % 90 == 0) {  // exact, without rounding noise
    const int quarter = view.angle / 90;
    c = quarter == 0 ? 1.0 : quarter == 2 ? -1.0 : 0.0;
    s = quarter == 1 ? 1.0 : quarter == 3 ? -1.0 : 0.0;
  }
  return {static_cast<LONG>(dx * c - dy * s + cx), static_cast<LONG>(dy * c + dx * s + cy)};
}

class ViewTransform : public PlotTest {
 protected:
  void EnterAll(const std::vector<Ground>& points) {
    const short legend = AddLegend(kCross);
    int key = 0;
    for (const Ground& at : points) ASSERT_EQ(0, Enter(++key, at, legend));
  }

  static void ExpectView(const View& view, const std::vector<Ground>& points) {
    const RECT client = Client();
    RawCanvas canvas(Window());
    for (const Ground& at : points) {
      DrawRawPoint(canvas.Dc(), kCross, PixelOf(view, client.right, client.bottom, at));
    }
    DrawRawNorthArrow(canvas.Dc(), view.angle, client.bottom);
    EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()))
        << "scale " << view.scale << ", ratio " << view.ratio << ", angle " << view.angle;
  }
};

const std::vector<Ground> kStar{{0.0, 0.0},   {10.0, 0.0},  {40.0, 0.0},    {0.0, 25.0},
                                {30.0, 60.0}, {-20.5, 7.3}, {-70.0, -90.0}, {55.5, -33.3}};

TEST_F(ViewTransform, NorthIsUpAndEastIsRight) {
  MakePlot(240, 180);
  EnterAll({{10.0, 20.0}});
  RawCanvas canvas(Window());
  DrawRawPoint(canvas.Dc(), kCross, {140, 80});
  EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()));
}

TEST_F(ViewTransform, PositiveAnglesTurnThePictureClockwise) {
  MakePlot(240, 180);
  EnterAll({{10.0, 0.0}});
  const struct {
    int angle;
    POINT north;
  } rows[] = {{0, {120, 80}}, {90, {130, 90}}, {180, {120, 100}}, {270, {110, 90}}};
  for (const auto& [angle, north] : rows) {
    ASSERT_EQ(0, Tavix_SetAng(angle));
    RawCanvas canvas(Window());
    DrawRawPoint(canvas.Dc(), kCross, north);
    DrawRawNorthArrow(canvas.Dc(), angle, 180);
    EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn())) << angle;
  }
}

TEST_F(ViewTransform, AnyAngleTurnsAboutTheMiddle) {
  MakePlot(241, 179);  // odd sizes: half a pixel is cut
  EnterAll(kStar);
  for (const int angle : {1, 30, 45, 89, 91, 135, 200, 271, 359, 0}) {
    ASSERT_EQ(0, Tavix_SetAng(angle));
    ExpectView({1.0, 1.0, angle, {}}, kStar);
  }
}

TEST_F(ViewTransform, MarksAndLabelsDoNotTurn) {
  MakePlot(240, 180);
  const PointLegend symbol{6, 20, 16, 0, 1, 0};
  ASSERT_EQ(0, Enter(1, {0.0, 0.0}, AddLegend(symbol), L"A1"));
  ASSERT_EQ(0, Tavix_SetAng(45));
  ASSERT_EQ(0, Tavix_SetTatYok(3, 1));
  RawCanvas canvas(Window());
  DrawRawPoint(canvas.Dc(), symbol, {120, 90}, L"A1");
  DrawRawNorthArrow(canvas.Dc(), 45, 180);
  EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()));
}

TEST_F(ViewTransform, TheRatioStretchesNorthBeforeTheTurn) {
  MakePlot(240, 180);
  EnterAll(kStar);
  const struct {
    int tate;
    int yoko;
  } rows[] = {{2, 1}, {1, 2}, {3, 4}, {1, 1}, {-1, 1}};
  for (const auto& [tate, yoko] : rows) {
    for (const int angle : {0, 90, 30}) {
      ASSERT_EQ(0, Tavix_SetTatYok(tate, yoko));
      ASSERT_EQ(0, Tavix_SetAng(angle));
      ExpectView({1.0, static_cast<double>(tate) / yoko, angle, {}}, kStar);
    }
  }
}

TEST_F(ViewTransform, ARatioThatIsNoNumberDrawsNothingAndGoesAgain) {
  MakePlot(240, 180);
  EnterAll(kStar);
  ASSERT_EQ(0, Tavix_SetTatYok(0, 0));
  EXPECT_EQ(0, Tavix_Drw(1));
  ASSERT_EQ(0, Tavix_SetTatYok(1, 1));
  ExpectView({}, kStar);
}

TEST_F(ViewTransform, AFitShowsAllDataWithAMargin) {
  const struct {
    const char* what;
    int width, height, angle, tate;
    std::vector<Ground> points;
    double scale;
  } rows[] = {
      {"east limits", 240, 180, 0, 1, {{0, 0}, {50, 100}}, 220.0 / 100.0},
      {"north limits", 240, 180, 0, 1, {{0, 0}, {100, 50}}, 160.0 * (1.0 / 100.0)},
      {"turned", 240, 180, 90, 1, {{0, 0}, {50, 100}}, 160.0 * (1.0 / 100.0)},
      {"turned by two right angles", 240, 180, 180, 1, {{0, 0}, {50, 100}}, 220.0 / 100.0},
      {"stretched", 240, 180, 0, 2, {{0, 0}, {50, 100}}, 160.0 * (1.0 / 100.0)},
      // The full proportions decide which side limits, not those less the margin.
      {"asymmetry", 240, 180, 0, 1, {{0, 0}, {100, 133}}, 160.0 * (1.0 / 100.0)},
      {"one point", 240, 180, 0, 1, {{1234.5, -987.25}}, 1.0},
      {"twice the same point", 240, 180, 0, 1, {{7, 8}, {7, 8}}, 1.0},
      {"a line to the east", 240, 180, 0, 1, {{7, 0}, {7, 50}}, 220.0 / 50.0},
      {"a line to the north", 240, 180, 0, 1, {{0, 7}, {50, 7}}, 160.0 / 50.0},
      {"the cap", 240, 180, 0, 1, {{0, 0}, {0, 0.0009765625}}, 100000.0},
      {"order does not matter", 240, 180, 0, 1, {{25, 60}, {50, 0}, {0, 100}}, 220.0 / 100.0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    Tavix_SetIdx(0);
    MakePlot(row.width, row.height);
    EnterAll(row.points);
    ASSERT_EQ(0, Tavix_SetAng(row.angle));
    ASSERT_EQ(0, Tavix_SetTatYok(row.tate, 1));
    Ground low = row.points.front();
    Ground high = low;
    for (const Ground& at : row.points) {
      low = {std::fmin(low.x, at.x), std::fmin(low.y, at.y)};
      high = {std::fmax(high.x, at.x), std::fmax(high.y, at.y)};
    }
    EXPECT_EQ(0, Tavix_Drw(0));
    ExpectView({row.scale,
                static_cast<double>(row.tate),
                row.angle,
                {(high.x + low.x) * 0.5, (high.y + low.y) * 0.5}},
               row.points);
    ASSERT_EQ(0, Tavix_Del());
  }
}

TEST_F(ViewTransform, AFitCountsPointsThatAreNotDrawn) {
  MakePlot(240, 180);
  ASSERT_EQ(0, Enter(10, {50.0, 100.0}, -1));
  EnterAll({{0.0, 0.0}});
  EXPECT_EQ(0, Tavix_Drw(0));
  ExpectView({220.0 / 100.0, 1.0, 0, {25.0, 50.0}}, {{0.0, 0.0}});
}

TEST_F(ViewTransform, AFitToNothingKeepsTheViewAndRedraws) {
  MakePlot(240, 180);
  EnterAll({{0.0, 0.0}, {50.0, 100.0}});
  EXPECT_EQ(0, Tavix_Drw(0));
  ASSERT_EQ(0, Tavix_DrwClr());
  EXPECT_EQ(0, Tavix_Drw(0));
  EXPECT_TRUE(SamePicture(RawCanvas(Window()).Take(), Shown()));
  EnterAll({{25.0, 60.0}});
  ExpectView({220.0 / 100.0, 1.0, 0, {25.0, 50.0}}, {{25.0, 60.0}});
}

TEST_F(ViewTransform, ARedrawThatKeepsTheViewKeepsIt) {
  MakePlot(240, 180);
  EnterAll({{0.0, 0.0}, {50.0, 100.0}});
  EXPECT_EQ(0, Tavix_Drw(0));
  ASSERT_EQ(0, Enter(3, {500.0, 600.0}, -1));
  for (const BYTE keep : {BYTE{1}, BYTE{0x80}, BYTE{0xFF}}) {
    EXPECT_EQ(0, Tavix_Drw(keep));
    ExpectView({220.0 / 100.0, 1.0, 0, {25.0, 50.0}}, {{0.0, 0.0}, {50.0, 100.0}});
  }
}

TEST_F(ViewTransform, TheAngleAndTheRatioDoNotRedraw) {
  MakePlot(240, 180);
  EnterAll(kStar);
  const Picture before = Redrawn();
  ASSERT_EQ(0, Tavix_SetAng(45));
  ASSERT_EQ(0, Tavix_SetTatYok(2, 1));
  EXPECT_FALSE(AwaitsPaint());
  EXPECT_TRUE(SamePicture(before, Shown()));
}

}  // namespace
}  // namespace tavix::test
