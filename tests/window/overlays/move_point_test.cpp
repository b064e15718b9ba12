#include <tavix/tavix.h>

#include <limits>

#include "tests/support/message_pump.h"
#include "tests/support/picture_compare.h"
#include "tests/support/raw_canvas.h"
#include "tests/support/raw_overlays.h"
#include "tests/window/overlays/overlay_test.h"

namespace tavix::test {
namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);

class MovePoint : public OverlayTest {
 protected:
  // An upright cross of 21 pixels on a plot of 200 x 160.
  void Start(int width = 200, int height = 160) {
    ASSERT_NO_FATAL_FAILURE(MakePlot(width, height));
    ASSERT_EQ(0, Tavix_MvPntStt(AddLegend({.size = 20, .width = 1, .color = kRed})));
  }

  static void MoveToPixel(POINT at) {
    const Ground ground = GroundAt(at);
    EXPECT_EQ(0, Tavix_MvPntMov(ground.x, ground.y));
  }

  static void AnchorAtPixel(POINT at) {
    const Ground ground = GroundAt(at);
    EXPECT_EQ(0, Tavix_MvPntRub(ground.x, ground.y));
  }

  static void XorCross(HDC dc, POINT at) {
    const RawXor drawing(dc, kRed ^ 0xFFFFFF, 1);
    ::MoveToEx(dc, at.x - 10, at.y, nullptr);
    ::LineTo(dc, at.x + 11, at.y);
    ::MoveToEx(dc, at.x, at.y - 10, nullptr);
    ::LineTo(dc, at.x, at.y + 11);
  }

  // What the window shows now, without a paint, against a cross at `at`.
  testing::AssertionResult ShowsCross(POINT at) {
    RawCanvas canvas(Window());
    XorCross(canvas.Dc(), at);
    return SamePicture(canvas.Take(), TakeClientPicture(Window()));
  }

  testing::AssertionResult ShowsNothing() {
    const RawCanvas canvas(Window());
    return SamePicture(canvas.Take(), TakeClientPicture(Window()));
  }
};

TEST_F(MovePoint, TakesAPointLegendOnly) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(200, 160));
  EXPECT_EQ(0, Tavix_MvPntStt(1));
  EXPECT_EQ(-1, Tavix_MvPntStt(999));
  EXPECT_EQ(-1, Tavix_MvPntStt(-1));
  EXPECT_EQ(-1, Tavix_MvPntStt(65536 + 1));
  EXPECT_EQ(-2, Tavix_MvPntStt(101));
}

TEST_F(MovePoint, NothingShowsBeforeTheFirstMove) {
  ASSERT_NO_FATAL_FAILURE(Start());
  AnchorAtPixel({10, 10});
  EXPECT_TRUE(ShowsNothing());
  EXPECT_EQ(0, Tavix_MvPntEnd());
  EXPECT_TRUE(ShowsNothing());
  EXPECT_FALSE(AwaitsPaint());
}

TEST_F(MovePoint, ShowsInTheLegendsColourOnWhite) {
  ASSERT_NO_FATAL_FAILURE(Start());
  MoveToPixel({60, 50});
  EXPECT_TRUE(ShowsCross({60, 50}));
  EXPECT_EQ(0xFF0000U, TakeClientPicture(Window()).At(55, 50));
  EXPECT_FALSE(AwaitsPaint());
}

TEST_F(MovePoint, WithoutAStartIsABlackCircleOfTenPixels) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(200, 160));
  EXPECT_EQ(-1, Tavix_MvPntStt(999));
  for (const POINT at : {POINT{60, 50}, POINT{120, 70}}) {
    MoveToPixel(at);
    RawCanvas canvas(Window());
    {
      const RawXor drawing(canvas.Dc(), 0xFFFFFF, 1);
      ::Ellipse(canvas.Dc(), at.x - 5, at.y - 5, at.x + 5, at.y + 5);
    }
    EXPECT_TRUE(SamePicture(canvas.Take(), TakeClientPicture(Window()))) << at.x;
    EXPECT_EQ(0U, TakeClientPicture(Window()).At(at.x, at.y - 5));
  }
  EXPECT_EQ(0, Tavix_MvPntEnd());
  EXPECT_TRUE(ShowsNothing());
}

// A mark is at most 65536 pixels large, as a point's is: it does not reach the window from here.
TEST_F(MovePoint, AHugeMarkFarAwayLeavesNoLineInView) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(200, 160));
  const int most = std::numeric_limits<int>::max();
  ASSERT_EQ(0, Tavix_MvPntStt(AddLegend({.kind = 4, .size = most, .width = 1, .color = kRed})));
  EXPECT_EQ(0, Tavix_MvPntMov(0.0, most / 2 + 50.0));
  EXPECT_TRUE(ShowsNothing());
}

TEST_F(MovePoint, EachMoveTakesTheOldPlaceOff) {
  ASSERT_NO_FATAL_FAILURE(Start());
  for (const POINT at : {POINT{60, 50}, POINT{63, 52}, POINT{63, 52}, POINT{0, 0}, POINT{199, 9}}) {
    MoveToPixel(at);
    EXPECT_TRUE(ShowsCross(at)) << at.x;
  }
  EXPECT_EQ(0, Tavix_MvPntEnd());
  EXPECT_TRUE(ShowsNothing());
}

TEST_F(MovePoint, ALineRunsFromTheAnchorToTheMark) {
  ASSERT_NO_FATAL_FAILURE(Start());
  AnchorAtPixel({20, 30});
  MoveToPixel({120, 90});
  RawCanvas canvas(Window());
  XorCross(canvas.Dc(), {120, 90});
  XorRawPolyline(canvas.Dc(), kRed ^ 0xFFFFFF, 1, {{20, 30}, {120, 90}});
  EXPECT_TRUE(SamePicture(canvas.Take(), TakeClientPicture(Window())));
  Tavix_MvPntEnd();
  EXPECT_TRUE(ShowsNothing());
  // The end has cleared the line, and the mark is kept.
  MoveToPixel({50, 50});
  EXPECT_TRUE(ShowsCross({50, 50}));
}

TEST_F(MovePoint, OffTheScreenItIsRememberedAndItsLineClipped) {
  ASSERT_NO_FATAL_FAILURE(Start());
  AnchorAtPixel({100, 80});
  MoveToPixel({400, 80});
  RawCanvas canvas(Window());
  // The clipped end comes first: the edge is crossed at (200, 80).
  XorRawPolyline(canvas.Dc(), kRed ^ 0xFFFFFF, 1, {{100, 80}, {200, 80}});
  EXPECT_TRUE(SamePicture(canvas.Take(), TakeClientPicture(Window())));
  Tavix_Pan(0, 200);  // 200 m to the east
  RawCanvas panned(Window());
  // Clipped at both sides it runs as the edges are met: the right one first.
  XorCross(panned.Dc(), {200, 80});
  XorRawPolyline(panned.Dc(), kRed ^ 0xFFFFFF, 1, {{200, 80}, {0, 80}});
  EXPECT_TRUE(SamePicture(panned.Take(), Shown()));
}

TEST_F(MovePoint, ARefusedStartKeepsTheState) {
  ASSERT_NO_FATAL_FAILURE(Start());
  MoveToPixel({60, 50});
  EXPECT_EQ(-2, Tavix_MvPntStt(101));
  EXPECT_EQ(-1, Tavix_MvPntStt(999));
  EXPECT_TRUE(ShowsCross({60, 50}));
  MoveToPixel({70, 50});
  EXPECT_TRUE(ShowsCross({70, 50}));
}

TEST_F(MovePoint, ANewStartLeavesNoMarkBehind) {
  ASSERT_NO_FATAL_FAILURE(Start());
  MoveToPixel({60, 50});
  EXPECT_EQ(0, Tavix_MvPntStt(1));
  EXPECT_TRUE(ShowsNothing());
}

TEST_F(MovePoint, LeavesNoTraceWhateverHappensBetween) {
  ASSERT_NO_FATAL_FAILURE(Start());
  ExpectNoTrace(
      [] {
        AnchorAtPixel({20, 30});
        MoveToPixel({70, 60});
      },
      [] {
        MoveToPixel({120, 60});
        Tavix_MvPntEnd();
      });
}

TEST_F(MovePoint, ShowsInThePlaceAfterAPan) {
  ASSERT_NO_FATAL_FAILURE(Start());
  MoveToPixel({60, 50});
  Tavix_Pan(10, 0);  // the ground goes 10 pixels down
  Shown();
  EXPECT_TRUE(ShowsCross({60, 60}));
}

TEST_F(MovePoint, WidensTheFitWhileItShows) {
  ASSERT_NO_FATAL_FAILURE(Start());
  Enter(1, {0, 0}, 201);
  Enter(2, {10, 10}, 201);
  Tavix_MvPntMov(0, 90);
  Tavix_Drw(0);  // 90 m to the east: (200 - 20) / 90 = 2 pixels per metre about (5, 45)
  int visible = 0;
  Tavix_ChkCrd(5, 94.5, &visible);
  EXPECT_EQ(1, visible);
  Tavix_ChkCrd(5, 95.6, &visible);
  EXPECT_EQ(0, visible);
  Tavix_MvPntEnd();
  Tavix_Drw(0);  // 10 m: (160 - 20) / 10 = 14 pixels per metre
  Tavix_ChkCrd(5, 13, &visible);
  EXPECT_EQ(0, visible);
}

TEST_F(MovePoint, NeedsAWindow) {
  ASSERT_EQ(0, Tavix_Crt());
  EXPECT_EQ(-1, Tavix_MvPntStt(1));
  EXPECT_EQ(-1, Tavix_MvPntRub(0, 0));
  EXPECT_EQ(-1, Tavix_MvPntMov(0, 0));
  EXPECT_EQ(-1, Tavix_MvPntEnd());
}

}  // namespace
}  // namespace tavix::test
