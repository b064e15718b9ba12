#include <tavix/tavix.h>

#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"
#include "tests/support/raw_overlays.h"

namespace tavix::test {
namespace {

class ScaleBar : public PlotTest {
 protected:
  void MakePlotWithBar() {
    ASSERT_NO_FATAL_FAILURE(MakePlot(240, 180));
    EXPECT_EQ(0, Tavix_SclBarDsp(1));
  }

  // A view of this many pixels per metre.
  static void SetScale(double pixels_per_metre) {
    const double half = 120 / pixels_per_metre;
    Tavix_Zom(-half / 2, -half, half / 2, half);
  }

  testing::AssertionResult ShowsBar(int length, const std::wstring& text) {
    RawCanvas canvas(Window());
    DrawRawScaleBar(canvas.Dc(), length, text);
    return SamePicture(canvas.Take(), Redrawn());
  }

  testing::AssertionResult ShowsNothing() {
    const RawCanvas canvas(Window());
    return SamePicture(canvas.Take(), Redrawn());
  }
};

TEST_F(ScaleBar, IsOffAtFirst) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(240, 180));
  EXPECT_TRUE(ShowsNothing());
  Tavix_SclBarDsp(1);
  EXPECT_TRUE(ShowsBar(50, L"50m"));
  Tavix_SclBarDsp(0);
  EXPECT_TRUE(ShowsNothing());
}

// 30 pixels decide: a length above the step takes the next longer bar.
TEST_F(ScaleBar, StandsForARoundLength) {
  ASSERT_NO_FATAL_FAILURE(MakePlotWithBar());
  const struct {
    double length_of_30_pixels;
    double bar;
    const wchar_t* text;
  } rows[] = {
      {700, 1000, L"1000m"}, {400, 500, L"500m"},  {200, 200, L"200m"},   {60, 100, L"100m"},
      {40, 50, L"50m"},      {15, 20, L"20m"},     {8, 10, L"10m"},       {4, 5, L"5m"},
      {2, 2, L"2m"},         {0.7, 1, L"1m"},      {0.4, 0.5, L"50cm"},   {0.2, 0.2, L"20cm"},
      {0.08, 0.1, L"10cm"},  {0.04, 0.05, L"5cm"}, {0.025, 0.02, L"2cm"}, {0.015, 0.01, L"1cm"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.length_of_30_pixels);
    const double scale = 30 / row.length_of_30_pixels;
    SetScale(scale);
    EXPECT_TRUE(ShowsBar(static_cast<int>(scale * row.bar + 1e-9), row.text));
  }
}

TEST_F(ScaleBar, AtAStepTheShorterBarCounts) {
  ASSERT_NO_FATAL_FAILURE(MakePlotWithBar());
  SetScale(0.05);  // 30 pixels are 600 m
  EXPECT_TRUE(ShowsBar(25, L"500m"));
  SetScale(0.3);  // 100 m
  EXPECT_TRUE(ShowsBar(30, L"100m"));
  SetScale(30);  // 1 m
  EXPECT_TRUE(ShowsBar(30, L"1m"));
  SetScale(1000);  // 0.03 m
  EXPECT_TRUE(ShowsBar(20, L"2cm"));
}

TEST_F(ScaleBar, TakesItsLengthFromTheView) {
  ASSERT_NO_FATAL_FAILURE(MakePlotWithBar());
  SetScale(2.2);  // 13.6 m
  EXPECT_TRUE(ShowsBar(44, L"20m"));
}

TEST_F(ScaleBar, IsLeftOutWhereItWouldBeSmallerThanACentimetre) {
  ASSERT_NO_FATAL_FAILURE(MakePlotWithBar());
  SetScale(2900);  // 30 pixels are 10.3 mm
  EXPECT_TRUE(ShowsBar(29, L"1cm"));
  SetScale(3100);
  EXPECT_TRUE(ShowsNothing());
  SetScale(90000);
  EXPECT_TRUE(ShowsNothing());
}

TEST_F(ScaleBar, IsMeasuredVerticallyOnceARatioWasGiven) {
  ASSERT_NO_FATAL_FAILURE(MakePlotWithBar());
  Tavix_SetTatYok(5, 1);  // 5 pixels per metre: 6 m
  EXPECT_TRUE(ShowsBar(50, L"10m"));
  Tavix_SetTatYok(1, 2);  // 60 m
  EXPECT_TRUE(ShowsBar(50, L"100m"));
}

TEST_F(ScaleBar, AnExaggeratedViewThatIsTurnedHasNone) {
  ASSERT_NO_FATAL_FAILURE(MakePlotWithBar());
  Tavix_SetTatYok(5, 1);
  Tavix_SetAng(2);  // shows no arrow, so it is not turned
  EXPECT_TRUE(ShowsBar(50, L"10m"));
  Tavix_SetAng(90);
  RawCanvas canvas(Window());
  DrawRawPolyline(canvas.Dc(), RGB(255, 0, 0), {{3, 165}, {27, 165}, {20, 162}});
  EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()));
}

TEST_F(ScaleBar, ATurnedViewOfOneScaleKeepsIt) {
  ASSERT_NO_FATAL_FAILURE(MakePlotWithBar());
  Tavix_SetAng(90);
  RawCanvas canvas(Window());
  DrawRawPolyline(canvas.Dc(), RGB(255, 0, 0), {{3, 165}, {27, 165}, {20, 162}});
  DrawRawScaleBar(canvas.Dc(), 50, L"50m");
  EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()));
}

TEST_F(ScaleBar, NoOverlayShowsInTheSideView) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(240, 180));
  Tavix_Dsp3D(1);
  const Picture plain = Redrawn();
  Tavix_SclBarDsp(1);
  Tavix_SetWak(1, 254, 2970, 254, 2100);
  Tavix_WakDsp(1);
  EXPECT_TRUE(SamePicture(plain, Redrawn()));
}

}  // namespace
}  // namespace tavix::test
