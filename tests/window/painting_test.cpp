// Painting: the screen shows the back buffer, and nothing is drawn but by a paint or a new point.
#include <tavix/tavix.h>

#include "tests/support/low_byte.h"
#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"

namespace tavix::test {
namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr std::uint32_t kRedPixel = 0xFF0000;

class Painting : public PlotTest {
 protected:
  void SetUp() override { MakePlot(120, 90); }

  static void Scribble(const RECT& place) {
    const HDC dc = ::GetDC(Window());
    const RawSelection brush(dc, ::CreateSolidBrush(kRed));
    ::PatBlt(dc, place.left, place.top, place.right - place.left, place.bottom - place.top,
             PATCOPY);
    ::ReleaseDC(Window(), dc);
  }

  static Picture Empty() { return RawCanvas(Window()).Take(); }
};

TEST_F(Painting, ShowsTheWindowColourAtFirst) { EXPECT_TRUE(SamePicture(Empty(), Shown())); }

TEST_F(Painting, ShowsTheWindowColourBeforeTheFirstRedrawToo) {
  Tavix_SetIdx(1);
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, Tavix_SetBtn(0));
  ASSERT_EQ(0, LinkPlot(100, 100, {400, 300}));
  ASSERT_EQ(0, Tavix_Dsp(1));
  EXPECT_TRUE(SamePicture(Empty(), Shown()));
}

TEST_F(Painting, CopiesTheInvalidPartOnly) {
  Scribble({0, 0, 120, 90});
  const RECT part{10, 20, 40, 60};
  ::InvalidateRect(Window(), &part, TRUE);
  const Picture picture = Shown();
  EXPECT_EQ(120 * 90 - 30 * 40, CountPixels(picture, kRedPixel));
  EXPECT_NE(kRedPixel, picture.At(10, 20));
  EXPECT_NE(kRedPixel, picture.At(39, 59));
}

TEST_F(Painting, WithNothingInvalidDrawsNothing) {
  Scribble({0, 0, 120, 90});
  ::SendMessageW(Window(), WM_PAINT, 0, 0);
  EXPECT_EQ(120 * 90, CountPixels(TakeClientPicture(Window()), kRedPixel));
}

TEST_F(Painting, ErasesWithTheWindowColour) {
  RawCanvas canvas(Window());
  {
    const RawSelection brush(canvas.Dc(), ::CreateSolidBrush(kRed));
    ::PatBlt(canvas.Dc(), 0, 0, 120, 90, PATCOPY);
  }
  EXPECT_NE(0, ::SendMessageW(Window(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.Dc()), 0));
  EXPECT_TRUE(SamePicture(Empty(), canvas.Take()));
}

// The buffer keeps the size that the window had when it was made.
TEST_F(Painting, ErasesWhatAWindowMadeLargerHasBesideItsPicture) {
  const Picture before = Shown();
  RECT outer{};
  ::GetWindowRect(Window(), &outer);
  ::SetWindowPos(Window(), nullptr, 0, 0, outer.right - outer.left + 40,
                 outer.bottom - outer.top + 30, SWP_NOMOVE | SWP_NOZORDER);
  Scribble(Client());
  ::InvalidateRect(Window(), nullptr, TRUE);
  const Picture picture = Shown();
  EXPECT_EQ(0, CountPixels(picture, kRedPixel));
  EXPECT_EQ(before.At(1, 1), picture.At(150, 110));
}

TEST_F(Painting, ARedrawInvalidatesTheWholeClient) {
  for (const BYTE keep_view : {BYTE{0}, BYTE{1}}) {
    EXPECT_EQ(0, Tavix_Drw(keep_view));
    RECT invalid{};
    EXPECT_TRUE(::GetUpdateRect(Window(), &invalid, FALSE));
    const RECT client = Client();
    EXPECT_TRUE(::EqualRect(&client, &invalid));
    Shown();
  }
}

TEST_F(Painting, ARedrawReplacesWhatWasDrawn) {
  const short legend = AddLegend({6, 20, 0, 0, 1, kRed});
  ASSERT_EQ(0, Enter(1, GroundAt({30, 30}), legend));
  EXPECT_NE(0, CountPixels(Redrawn(), kRedPixel));
  ASSERT_EQ(0, Tavix_DelEntPnt(1));
  EXPECT_TRUE(SamePicture(Empty(), Redrawn()));
}

TEST_F(Painting, OfTheClearedInstanceIsEmptyAfterARedraw) {
  const short legend = AddLegend({6, 20, 0, 0, 1, kRed});
  ASSERT_EQ(0, Enter(1, GroundAt({30, 30}), legend));
  const Picture with_point = Redrawn();
  EXPECT_EQ(0, Tavix_DrwClr());
  EXPECT_TRUE(SamePicture(with_point, Shown()));  // clearing does not redraw
  EXPECT_TRUE(SamePicture(Empty(), Redrawn()));
}

TEST_F(Painting, APointEnteredWhileHiddenShowsAtTheNextPaint) {
  const short legend = AddLegend({6, 20, 0, 0, 1, kRed});
  Tavix_DrwFlg(1);
  ASSERT_EQ(0, Tavix_Dsp(0));
  ASSERT_EQ(0, Enter(1, GroundAt({30, 30}), legend));
  ASSERT_EQ(0, Tavix_Dsp(1));
  RawCanvas canvas(Window());
  DrawRawPoint(canvas.Dc(), {6, 20, 0, 0, 1, kRed}, {30, 30});
  EXPECT_TRUE(SamePicture(canvas.Take(), Shown()));
}

TEST_F(Painting, APointEnteredWhileTheHostIsHiddenShowsToo) {
  const short legend = AddLegend({6, 20, 0, 0, 1, kRed});
  Tavix_DrwFlg(1);
  ::ShowWindow(host_.Window(), SW_HIDE);
  ASSERT_EQ(0, Enter(1, GroundAt({30, 30}), legend));
  ::ShowWindow(host_.Window(), SW_SHOWNOACTIVATE);
  RawCanvas canvas(Window());
  DrawRawPoint(canvas.Dc(), {6, 20, 0, 0, 1, kRed}, {30, 30});
  EXPECT_TRUE(SamePicture(canvas.Take(), Shown()));
}

TEST_F(Painting, TheSideViewShowsNoneOfThePlansPoints) {
  const short legend = AddLegend({10, 20, 0, 0, 1, RGB(1, 2, 3)});
  ASSERT_EQ(0, Enter(1, GroundAt({60, 45}), legend));
  ASSERT_NE(0, CountPixels(Redrawn(), 0x010203));
  const struct {
    int flag;
    bool side_view;
  } rows[] = {{1, true}, {0, false}, {0xFF, true}, {0x100, false}};
  for (const auto& [flag, side_view] : rows) {
    const Picture before = Shown();
    EXPECT_EQ(0, CallWithWholeFlag(&Tavix_Dsp3D, flag));
    EXPECT_TRUE(SamePicture(before, Shown()));  // the switch itself does not redraw
    EXPECT_EQ(side_view, CountPixels(Redrawn(), 0x010203) == 0) << flag;
  }
}

}  // namespace
}  // namespace tavix::test
