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

// A kind that draws no segment, a pattern, and an entry of zeros draw the circle all the same.
TEST_F(FigureDrawing, ACircleIsDrawnWhateverItsStyle) {
  ASSERT_NO_FATAL_FAILURE(MakePlotAndLegend());
  const struct {
    int kind;
    int width;
    COLORREF color;
  } rows[] = {{0, 0, 0}, {0, 3, kGreen}, {103, 1, kGreen}, {55, 2, RGB(255, 0, 255)}};
  for (const auto& [kind, width, color] : rows) {
    Tavix_DrwClr();
    short legend = 0;
    ASSERT_EQ(0, Tavix_AddLinHan(kind, 0, 0, 0, width, static_cast<int>(color), &legend));
    Tavix_FigStt(1, legend);
    Tavix_FigMdlCir(10, 20, 40);
    const RawCanvas canvas(Window());
    {
      const RawSelection pen(canvas.Dc(), ::CreatePen(PS_SOLID, width, color));
      ::Ellipse(canvas.Dc(), 180, 120, 100, 40);
    }
    EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn())) << kind << ", " << width;
  }
}

// A device context begins with the black pen; what is under the circle shows through.
TEST_F(FigureDrawing, ACircleWithoutALegendEntryIsDrawnWithThePenThatIsThere) {
  ASSERT_NO_FATAL_FAILURE(MakePlotAndLegend());
  for (const int legend : {-1, 999}) {
    Tavix_DrwClr();
    Tavix_FigStt(1, legend);
    Tavix_FigMdlCir(10, 20, 40);
    Tavix_FigMdlLin(0, -50, 20, 60);  // draws nothing
    Tavix_FigMdlCir(10, 30, 40);
    const RawCanvas canvas(Window());
    ::Ellipse(canvas.Dc(), 180, 120, 100, 40);
    ::Ellipse(canvas.Dc(), 190, 120, 110, 40);
    EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn())) << legend;
  }
}

TEST_F(FigureDrawing, AFigureWithoutALegendEntryLooksLikeTheOneBefore) {
  ASSERT_NO_FATAL_FAILURE(MakePlotAndLegend());
  for (const int unknown : {-1, 999}) {
    Tavix_DrwClr();
    Tavix_FigStt(1, legend_);
    Tavix_FigMdlLin(0, -50, 20, 60);
    Tavix_FigStt(2, unknown);
    Tavix_FigMdlCir(10, 20, 40);
    Tavix_FigMdlLin(40, -50, 20, 70);
    EXPECT_TRUE(SamePicture(Raw([](HDC dc) {
                              ::MoveToEx(dc, 70, 90, nullptr);
                              ::LineTo(dc, 180, 70);
                              ::Ellipse(dc, 180, 120, 100, 40);
                              ::MoveToEx(dc, 70, 50, nullptr);
                              ::LineTo(dc, 190, 70);
                            }),
                            Redrawn()))
        << unknown;
  }
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
