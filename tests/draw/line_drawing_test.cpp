// Which lines are drawn, in which order, and when.
#include "tests/support/line_plot_test.h"

namespace tavix::test {
namespace {

constexpr LineLegend kRed{101, 0, 0, 0, 3, RGB(255, 0, 0)};
constexpr LineLegend kBlue{101, 0, 0, 0, 3, RGB(0, 0, 255)};
constexpr LineLegend kDashes{104, 9, 4, 3, 1, RGB(0, 128, 0)};
constexpr RawView kView{240, 180};

class LineDrawing : public LinePlotTest {
 protected:
  void SetUp() override {
    LinePlotTest::SetUp();
    red_ = AddLineLegend(kRed);
    blue_ = AddLineLegend(kBlue);
    for (int key = 1; key <= 4; ++key) Place(key, kAt[key]);
  }

  // The picture of these lines, in this order.
  struct Drawn {
    int from;
    int to;
    LineLegend look;
  };
  static Picture PictureOf(std::initializer_list<Drawn> lines) {
    const RawCanvas canvas(Window());
    for (const Drawn& line : lines) {
      DrawRawLine(canvas.Dc(), kView, line.look, kAt[line.from], kAt[line.to]);
    }
    return canvas.Take();
  }

  static void EnterLine(int a, int b, short legend) {
    Tavix_SelLinHan(legend);
    EXPECT_EQ(0, Tavix_EntLin(a, b));
  }

  static constexpr Ground kAt[] = {
      {0, 0}, {60.0, -90.0}, {-60.0, 90.0}, {60.0, 90.0}, {-60.0, -90.0}};
  short red_ = 0;
  short blue_ = 0;
};

TEST_F(LineDrawing, WaitsForARedrawUnlessAutoRedrawIsOn) {
  EnterLine(1, 2, red_);
  EXPECT_TRUE(SamePicture(PictureOf({}), Shown()));
  EXPECT_TRUE(SamePicture(PictureOf({{1, 2, kRed}}), Redrawn()));
}

TEST_F(LineDrawing, IsInTheOrderOfEntry) {
  EnterLine(2, 1, red_);
  EnterLine(1, 1, red_);  // sorts before the others by key
  EnterLine(4, 3, blue_);
  EXPECT_TRUE(SamePicture(PictureOf({{2, 1, kRed}, {1, 1, kRed}, {4, 3, kBlue}}), Redrawn()));
  Tavix_ClrEntLin();
  EnterLine(4, 3, blue_);
  EnterLine(2, 1, red_);  // the smaller keys last
  EXPECT_TRUE(SamePicture(PictureOf({{4, 3, kBlue}, {2, 1, kRed}}), Redrawn()));
}

TEST_F(LineDrawing, GoesFromTheKeyGivenFirst) {
  const short dashes = AddLineLegend(kDashes);
  EnterLine(2, 1, dashes);
  EXPECT_TRUE(SamePicture(PictureOf({{2, 1, kDashes}}), Redrawn()));
  Tavix_ClrEntLin();
  EnterLine(1, 2, dashes);
  EXPECT_TRUE(SamePicture(PictureOf({{1, 2, kDashes}}), Redrawn()));
  ASSERT_FALSE(PictureOf({{1, 2, kDashes}}) == PictureOf({{2, 1, kDashes}}));
}

TEST_F(LineDrawing, PassesOverALineWithoutAnEnd) {
  EnterLine(1, 9, red_);
  EnterLine(8, 2, red_);
  EnterLine(7, 6, red_);
  EnterLine(3, 4, blue_);
  EXPECT_TRUE(SamePicture(PictureOf({{3, 4, kBlue}}), Redrawn()));
  EnterLine(1, 2, red_);
  EXPECT_EQ(0, Tavix_DelEntPnt(3));
  EXPECT_TRUE(SamePicture(PictureOf({{1, 2, kRed}}), Redrawn()));
  Place(3, kAt[3]);
  EXPECT_TRUE(SamePicture(PictureOf({{3, 4, kBlue}, {1, 2, kRed}}), Redrawn()));
}

TEST_F(LineDrawing, FollowsAPointThatMoves) {
  Place(5, {0.0, 0.0});
  EnterLine(5, 3, red_);
  EXPECT_EQ(0, Tavix_ChgPntCrd(5, kAt[4].x, kAt[4].y));
  EXPECT_TRUE(SamePicture(PictureOf({{4, 3, kRed}}), Redrawn()));
}

// A line keeps 16 bits of a key, and is drawn to the point of that short key.
TEST_F(LineDrawing, LooksForTheShortKeys) {
  Place(70000, kAt[2]);
  EnterLine(70000, 1, red_);
  EXPECT_TRUE(SamePicture(PictureOf({}), Redrawn())) << "there is no point 4464";
  Place(4464, kAt[2]);
  EXPECT_TRUE(SamePicture(PictureOf({{2, 1, kRed}}), Redrawn()));
}

TEST_F(LineDrawing, OfAnUnknownLegendIsLikeTheLineBefore) {
  const short dashes = AddLineLegend(kDashes);
  for (const short legend : {short{-1}, short{100}, short{106}, short{9999}}) {
    Tavix_ClrEntLin();
    EnterLine(1, 2, legend);
    EXPECT_TRUE(SamePicture(PictureOf({}), Redrawn())) << legend << ": none is before it";
    EnterLine(3, 4, dashes);
    EnterLine(2, 3, legend);
    EnterLine(1, 4, blue_);
    EnterLine(2, 4, legend);
    EXPECT_TRUE(SamePicture(
        PictureOf({{3, 4, kDashes}, {2, 3, kDashes}, {1, 4, kBlue}, {2, 4, kBlue}}), Redrawn()))
        << legend;
  }
}

// Figures and lines are drawn in passes of their own.
TEST_F(LineDrawing, OfAnUnknownLegendIsNotLikeAFigure) {
  ASSERT_EQ(0, Tavix_FigStt(1, blue_));
  ASSERT_EQ(0, Tavix_FigMdlLin(kAt[3].x, kAt[3].y, kAt[4].x, kAt[4].y));
  ASSERT_EQ(0, Tavix_FigEnd());
  EnterLine(1, 2, 9999);
  EXPECT_TRUE(SamePicture(PictureOf({{3, 4, kBlue}}), Redrawn()));
}

// What is drawn at once has no line before it.
TEST_F(LineDrawing, AtOnceIsNoneForAnUnknownLegend) {
  EnterLine(3, 4, red_);
  Redrawn();
  Tavix_DrwFlg(1);
  EnterLine(1, 2, 9999);
  EXPECT_TRUE(SamePicture(PictureOf({{3, 4, kRed}}), TakeClientPicture(Window())));
  EXPECT_TRUE(SamePicture(PictureOf({{3, 4, kRed}, {1, 2, kRed}}), Redrawn()));
}

TEST_F(LineDrawing, IsUnderThePoints) {
  const PointLegend mark{10, 21, 0, 0, 1, RGB(0, 160, 0)};
  EnterLine(1, 2, red_);
  ASSERT_EQ(0, Enter(6, {0.0, 0.0}, AddLegend(mark)));
  const RawCanvas canvas(Window());
  DrawRawLine(canvas.Dc(), kView, kRed, kAt[1], kAt[2]);
  DrawRawPoint(canvas.Dc(), mark, {120, 90});
  EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()));
}

TEST_F(LineDrawing, IsOverTheFigures) {
  ASSERT_EQ(0, Tavix_FigStt(1, blue_));
  ASSERT_EQ(0, Tavix_FigMdlLin(kAt[3].x, kAt[3].y, kAt[4].x, kAt[4].y));
  ASSERT_EQ(0, Tavix_FigEnd());
  EnterLine(1, 2, red_);
  EXPECT_TRUE(SamePicture(PictureOf({{3, 4, kBlue}, {1, 2, kRed}}), Redrawn()));
}

TEST_F(LineDrawing, IsAtOnceWithAutoRedraw) {
  Tavix_DrwFlg(1);
  EnterLine(1, 2, red_);
  const Picture expected = PictureOf({{1, 2, kRed}});
  EXPECT_FALSE(AwaitsPaint());
  EXPECT_TRUE(SamePicture(expected, TakeClientPicture(Window())));
  ::InvalidateRect(Window(), nullptr, TRUE);
  EXPECT_TRUE(SamePicture(expected, Shown())) << "the buffer has it too";
}

// At once only the new line is drawn, over whatever is there; a redraw puts it below the points.
TEST_F(LineDrawing, AtOnceIsOverThePoints) {
  const PointLegend mark{10, 21, 0, 0, 1, RGB(0, 160, 0)};
  ASSERT_EQ(0, Enter(6, {0.0, 0.0}, AddLegend(mark)));
  Redrawn();
  Tavix_DrwFlg(1);
  EnterLine(1, 2, red_);
  const RawCanvas canvas(Window());
  DrawRawPoint(canvas.Dc(), mark, {120, 90});
  DrawRawLine(canvas.Dc(), kView, kRed, kAt[1], kAt[2]);
  EXPECT_TRUE(SamePicture(canvas.Take(), TakeClientPicture(Window())));
}

TEST_F(LineDrawing, AtOnceIsNoneForALineThatIsThere) {
  EnterLine(1, 2, red_);
  Tavix_DrwFlg(1);
  EnterLine(2, 1, blue_);
  EXPECT_FALSE(AwaitsPaint());
  EXPECT_TRUE(SamePicture(PictureOf({}), TakeClientPicture(Window())));
}

TEST_F(LineDrawing, AtOnceGoesToTheBufferOfAHiddenWindow) {
  ASSERT_EQ(0, Tavix_Dsp(0));
  Tavix_DrwFlg(1);
  EnterLine(1, 2, red_);
  ASSERT_EQ(0, Tavix_Dsp(1));
  EXPECT_TRUE(SamePicture(PictureOf({{1, 2, kRed}}), Shown()));
}

TEST_F(LineDrawing, AChangedLegendRedrawsWithAutoRedrawOnly) {
  EnterLine(1, 2, red_);
  Redrawn();
  EXPECT_EQ(0, Tavix_ChgLinHid(2, 1, blue_));
  EXPECT_FALSE(AwaitsPaint());
  EXPECT_TRUE(SamePicture(PictureOf({{1, 2, kRed}}), Shown()));
  Tavix_DrwFlg(1);
  EXPECT_EQ(0, Tavix_ChgLinHid(1, 2, blue_));
  EXPECT_FALSE(AwaitsPaint()) << "it has this legend already";
  EXPECT_EQ(0, Tavix_ChgLinHid(1, 2, red_));
  EXPECT_TRUE(AwaitsPaint());
  EXPECT_TRUE(SamePicture(PictureOf({{1, 2, kRed}}), Shown()));
}

TEST_F(LineDrawing, DeletingNeverRedraws) {
  EnterLine(1, 2, red_);
  EnterLine(3, 4, blue_);
  const Picture before = Redrawn();
  Tavix_DrwFlg(1);
  EXPECT_EQ(0, Tavix_DelEntLin(1, 2));
  EXPECT_FALSE(AwaitsPaint());
  EXPECT_EQ(0, Tavix_ClrEntLin());
  EXPECT_FALSE(AwaitsPaint());
  ::InvalidateRect(Window(), nullptr, TRUE);
  EXPECT_TRUE(SamePicture(before, Shown()));
  EXPECT_TRUE(SamePicture(PictureOf({}), Redrawn()));
}

}  // namespace
}  // namespace tavix::test
