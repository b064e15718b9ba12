// Which points near and beyond the borders of the window are drawn.
#include <tavix/tavix.h>

#include <limits>
#include <string>

#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"

namespace tavix::test {
namespace {

constexpr int kWidth = 200;
constexpr int kHeight = 160;

class PointVisibility : public PlotTest {
 protected:
  void SetUp() override { MakePlot(kWidth, kHeight); }

  // Compares a labelled point at `at` with the same by raw calls, or with an empty window.
  void ExpectPoint(const PointLegend& symbol, POINT at, bool visible) {
    ASSERT_EQ(0, Enter(1, GroundAt(at), AddLegend(symbol), kName));
    const RawCanvas canvas(Window());
    const Picture empty = canvas.Take();
    DrawRawPoint(canvas.Dc(), symbol, at, kName);
    ASSERT_FALSE(empty == canvas.Take()) << "not to be seen there: the row tests nothing";
    EXPECT_TRUE(SamePicture(visible ? canvas.Take() : empty, Redrawn()))
        << symbol.size << " pixels at (" << at.x << ", " << at.y << ")";
  }

  static inline const std::wstring kName = L"WWWWWWWWWWWW";
};

TEST_F(PointVisibility, EndsAMarksSizeBeyondTheLeftAndTopBorders) {
  // The label stretches to the right and down, into the window.
  for (const int size : {1, 6, 10, 21, 40}) {
    const PointLegend symbol{4, size, 24 + size, 0, 1, RGB(255, 0, 0)};
    ExpectPoint(symbol, {-size, 70}, true);
    ExpectPoint(symbol, {-size - 1, 70}, false);
    ExpectPoint(symbol, {60, -size}, true);
    ExpectPoint(symbol, {60, -size - 1}, false);
  }
}

TEST_F(PointVisibility, WithoutAMarkEndsAtTheBorder) {
  const PointLegend symbol{4, 0, 30, 0, 1, 0};
  ExpectPoint(symbol, {0, 70}, true);
  ExpectPoint(symbol, {-1, 70}, false);
  ExpectPoint(symbol, {60, 0}, true);
  ExpectPoint(symbol, {60, -1}, false);
}

TEST_F(PointVisibility, OfANegativeSizeEndsInside) {
  const PointLegend symbol{4, -20, 30, 0, 1, 0};
  ExpectPoint(symbol, {20, 70}, true);
  ExpectPoint(symbol, {19, 70}, false);
  ExpectPoint(symbol, {kWidth - 20, 70}, true);
  ExpectPoint(symbol, {kWidth - 19, 70}, false);
  ExpectPoint(symbol, {60, kHeight - 20}, true);
  ExpectPoint(symbol, {60, kHeight - 19}, false);
}

TEST_F(PointVisibility, TruncationPullsPointsOverTheLeftAndTopBordersIn) {
  const PointLegend symbol{4, 0, 30, 0, 1, 0};
  const short legend = AddLegend(symbol);
  RawCanvas canvas(Window());
  DrawRawPoint(canvas.Dc(), symbol, {0, 70}, kName);
  // Nine tenths of a pixel to the left of the border is pixel 0 still.
  ASSERT_EQ(0, Enter(1, {80.0 - 70.0, -100.9}, legend, kName));
  EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()));
  ASSERT_EQ(0, Enter(1, {80.0 - 70.0, -101.0}, legend, kName));
  EXPECT_TRUE(SamePicture(RawCanvas(Window()).Take(), Redrawn()));
}

TEST_F(PointVisibility, FarAwayPointsAreNotDrawnAndDoNoHarm) {
  constexpr double kInfinite = std::numeric_limits<double>::infinity();
  constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
  const PointLegend symbol{10, 20, 16, 0, 1, RGB(255, 0, 0)};
  const short legend = AddLegend(symbol);
  int key = 10;
  for (const double far_away : {1e4, -1e4, 2147483647.0, -2147483648.0, 4e9, -4e9, 1e18, 1e300,
                                -1e300, kInfinite, -kInfinite, kNoNumber}) {
    ASSERT_EQ(0, Enter(++key, {far_away, 0.0}, legend, L"far"));
    ASSERT_EQ(0, Enter(++key, {0.0, far_away}, legend, L"far"));
    ASSERT_EQ(0, Enter(++key, {far_away, far_away}, legend, L"far"));
  }
  ASSERT_EQ(0, Enter(1, GroundAt({100, 80}), legend, L"near"));
  RawCanvas canvas(Window());
  DrawRawPoint(canvas.Dc(), symbol, {100, 80}, L"near");
  EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()));
  for (const int angle : {45, 90, 180, 270}) {
    Tavix_SetAng(angle);
    EXPECT_EQ(0, Tavix_Drw(1));
    EXPECT_EQ(0, Tavix_Drw(0));
  }
}

// It reaches as far as it is drawn, not as far as its legend says.
TEST_F(PointVisibility, OfAMarkLargerThanAnyScreenEndsAHundredPixelsAway) {
  const PointLegend symbol{4, std::numeric_limits<int>::max(), 0, 0, 1, RGB(255, 0, 0)};
  const short legend = AddLegend(symbol);
  ASSERT_EQ(0, Enter(1, GroundAt({100, 80}), legend));
  EXPECT_EQ(101 + 101 - 1, CountPixels(Redrawn(), 0xFF0000));
  ASSERT_EQ(0, Enter(1, GroundAt({-40, 80}), legend));
  EXPECT_EQ(11, CountPixels(Redrawn(), 0xFF0000));
}

TEST_F(PointVisibility, LegendValuesOutOfAllReasonDoNotHoldTheDrawingUp) {
  // The first of these once kept the system busy with an ellipse for minutes.
  constexpr int kLeast = std::numeric_limits<int>::min();
  constexpr int kMost = std::numeric_limits<int>::max();
  const PointLegend symbols[] = {{8, kMost, 0, 0, 1, 0},
                                 {2, kMost, 0, 0, 3, 0},
                                 {5, kMost, kMost, 0, kMost, 0},
                                 {6, kLeast, kLeast, 0, kLeast, 0}};
  for (const PointLegend& symbol : symbols) {
    ASSERT_EQ(0, Enter(1, GroundAt({100, 80}), AddLegend(symbol), L"A"));
    EXPECT_EQ(0, Tavix_Drw(1));
    EXPECT_FALSE(Shown().pixels.empty());
  }
}

}  // namespace
}  // namespace tavix::test
