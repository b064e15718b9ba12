// When figures are drawn, where, and how they count for the fit.
#include <tavix/tavix.h>

#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"

namespace tavix::test {
namespace {

constexpr COLORREF kGreen = RGB(0, 160, 0);

class FigureDrawing : public PlotTest {
 protected:
  void MakePlotAndLegend() {
    ASSERT_NO_FATAL_FAILURE(MakePlot(240, 180));
    ASSERT_EQ(0, Tavix_AddLinHan(101, 0, 0, 0, 1, static_cast<int>(kGreen), &legend_));
    Tavix_FigStt(1, legend_);
  }

  Picture Raw(const std::function<void(HDC)>& draw) {
    RawCanvas canvas(Window());
    const RawSelection pen(canvas.Dc(), ::CreatePen(PS_SOLID, 1, kGreen));
    draw(canvas.Dc());
    return canvas.Take();
  }
  Picture Nothing() {
    return Raw([](HDC) {});
  }

  short legend_ = 0;
};

TEST_F(FigureDrawing, APieceShowsAtTheNextRedrawBeforeTheFigureEnds) {
  ASSERT_NO_FATAL_FAILURE(MakePlotAndLegend());
  Tavix_FigMdlLin(0, -50, 20, 60);
  EXPECT_TRUE(SamePicture(Nothing(), Shown()));
  EXPECT_TRUE(SamePicture(Raw([](HDC dc) {
                            ::MoveToEx(dc, 70, 90, nullptr);
                            ::LineTo(dc, 180, 70);
                          }),
                          Redrawn()));
}

TEST_F(FigureDrawing, EndAndDeletionRedrawOnlyWhileAutoRedrawIsOn) {
  ASSERT_NO_FATAL_FAILURE(MakePlotAndLegend());
  Tavix_FigMdlLin(0, -50, 0, 50);
  Tavix_FigEnd();
  EXPECT_FALSE(AwaitsPaint());
  Tavix_DrwFlg(1);
  EXPECT_EQ(0, Tavix_FigEnd());
  EXPECT_TRUE(AwaitsPaint());
  EXPECT_FALSE(Nothing() == Shown());
  EXPECT_EQ(0, Tavix_DelFig(1));
  EXPECT_TRUE(AwaitsPaint());
  EXPECT_TRUE(SamePicture(Nothing(), Shown()));
}

TEST_F(FigureDrawing, DeletingFromNoneRedrawsNothing) {
  ASSERT_NO_FATAL_FAILURE(MakePlotAndLegend());
  Tavix_DrwFlg(1);
  EXPECT_EQ(-1, Tavix_DelFig(1));
  EXPECT_FALSE(AwaitsPaint());
}

TEST_F(FigureDrawing, AFigureOfFewerThanTwoPointsDrawsNothing) {
  ASSERT_NO_FATAL_FAILURE(MakePlotAndLegend());
  const double one = 0;
  Tavix_FigMdlPly(1, &one, &one);
  Tavix_FigMdlPly(0, nullptr, nullptr);
  Tavix_FigMdlPly(-1, nullptr, nullptr);
  EXPECT_TRUE(SamePicture(Nothing(), Redrawn()));
}

// A box 80 m wide in 240 x 180 pixels less the margin: 160 / 80 = 2 pixels per metre.
TEST_F(FigureDrawing, ACircleCountsWithItsRadiusInTheFit) {
  ASSERT_NO_FATAL_FAILURE(MakePlotAndLegend());
  Tavix_FigMdlCir(1000, 2000, 40);
  EXPECT_EQ(0, Tavix_Drw(0));
  EXPECT_TRUE(SamePicture(Raw([](HDC dc) { ::Ellipse(dc, 200, 170, 40, 10); }), Shown()));
}

TEST_F(FigureDrawing, DeletedAndEmptyOnesCountNothingInTheFit) {
  ASSERT_NO_FATAL_FAILURE(MakePlotAndLegend());
  Tavix_FigStt(2, legend_);
  Tavix_FigMdlLin(-9e5, -9e5, 9e5, 9e5);
  Tavix_FigMdlPly(0, nullptr, nullptr);
  Tavix_FigStt(1, legend_);
  Tavix_FigMdlCir(1000, 2000, 40);
  EXPECT_EQ(0, Tavix_DelFig(2));
  Tavix_Drw(0);
  EXPECT_TRUE(SamePicture(Raw([](HDC dc) { ::Ellipse(dc, 200, 170, 40, 10); }), Shown()));
}

TEST_F(FigureDrawing, WithNothingLeftToFitTheViewStays) {
  ASSERT_NO_FATAL_FAILURE(MakePlotAndLegend());
  Tavix_FigMdlPly(0, nullptr, nullptr);
  Tavix_FigMdlLin(5000, 5000, 9000, 9000);
  Tavix_DelFig(1);
  EXPECT_EQ(0, Tavix_Drw(0));
  int visible = 0;
  Tavix_ChkCrd(-90, -120, &visible);  // a corner of the view an instance begins with
  EXPECT_EQ(1, visible);
  Tavix_ChkCrd(-91.5, -120, &visible);
  EXPECT_EQ(0, visible);
}

TEST_F(FigureDrawing, PointsAndFiguresAreFittedTogether) {
  ASSERT_NO_FATAL_FAILURE(MakePlotAndLegend());
  Enter(1, {0, 0}, 201);
  Tavix_FigMdlLin(10, 0, 80, 50);
  Tavix_Drw(0);  // 80 m high, 50 m wide: 160 / 80 = 2 pixels per metre about (40, 25)
  EXPECT_TRUE(SamePicture(Raw([](HDC dc) {
                            ::MoveToEx(dc, 70, 150, nullptr);
                            ::LineTo(dc, 170, 10);
                          }),
                          Shown()));
}

}  // namespace
}  // namespace tavix::test
