#include <tavix/tavix.h>

#include "tests/support/picture_compare.h"
#include "tests/support/raw_canvas.h"
#include "tests/support/raw_overlays.h"
#include "tests/window/overlays/overlay_test.h"

namespace tavix::test {
namespace {

constexpr COLORREF kCyan = 0xFFFF00;

class TracedLine : public OverlayTest {
 protected:
  static void AddPixel(POINT at) {
    const Ground ground = GroundAt(at);
    EXPECT_EQ(0, Tavix_VoAdd(ground.x, ground.y));
  }

  static int Count() {
    int count = -1;
    EXPECT_EQ(0, Tavix_VoGet(&count));
    return count;
  }

  Picture Raw(const std::vector<std::vector<POINT>>& segments) {
    RawCanvas canvas(Window());
    for (const auto& segment : segments) XorRawPolyline(canvas.Dc(), kCyan, 1, segment);
    return canvas.Take();
  }

  // On the screen as it is, and again after a redraw of everything.
  void ExpectShown(const std::vector<std::vector<POINT>>& segments) {
    EXPECT_TRUE(SamePicture(Raw(segments), TakeClientPicture(Window())));
    ::InvalidateRect(Window(), nullptr, TRUE);
    EXPECT_TRUE(SamePicture(Raw(segments), Shown()));  // from the back buffer
    EXPECT_TRUE(SamePicture(Raw(segments), Redrawn()));
  }
};

TEST_F(TracedLine, ShowsFromTheSecondVertexOn) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(200, 160));
  EXPECT_EQ(0, Tavix_VoStt());
  EXPECT_EQ(0, Count());
  AddPixel({20, 30});
  EXPECT_EQ(1, Count());
  ExpectShown({});
  AddPixel({120, 90});
  EXPECT_FALSE(AwaitsPaint());
  ExpectShown({{{20, 30}, {120, 90}}});
  AddPixel({30, 140});
  ExpectShown({{{20, 30}, {120, 90}}, {{120, 90}, {30, 140}}});
}

TEST_F(TracedLine, ByExclusiveOrACrossingIsBackgroundAgain) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(200, 160));
  Tavix_VoStt();
  for (const POINT at : {POINT{20, 80}, POINT{120, 80}, POINT{70, 20}, POINT{70, 140}})
    AddPixel(at);
  const Picture shown = TakeClientPicture(Window());
  EXPECT_EQ(0xFFFFFFU, shown.At(70, 80));
  EXPECT_EQ(0xFF0000U, shown.At(60, 80));  // cyan taken out of white
  EXPECT_EQ(0xFF0000U, shown.At(70, 79));
}

TEST_F(TracedLine, TheLastVertexIsTakenBack) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(200, 160));
  EXPECT_EQ(-1, Tavix_VoDel());
  Tavix_VoStt();
  for (const POINT at : {POINT{20, 30}, POINT{120, 90}, POINT{30, 140}}) AddPixel(at);
  EXPECT_EQ(0, Tavix_VoDel());
  ExpectShown({{{20, 30}, {120, 90}}});
  EXPECT_EQ(0, Tavix_VoDel());
  EXPECT_EQ(1, Count());
  ExpectShown({});
  EXPECT_EQ(0, Tavix_VoDel());
  EXPECT_EQ(0, Count());
  EXPECT_EQ(-1, Tavix_VoDel());
}

TEST_F(TracedLine, AVertexOffTheScreenIsKept) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(200, 160));
  Tavix_VoStt();
  AddPixel({250, 80});
  AddPixel({300, 80});
  ExpectShown({});
  EXPECT_EQ(2, Count());
  Tavix_Pan(0, 200);
  EXPECT_TRUE(SamePicture(Raw({{{50, 80}, {100, 80}}}), Shown()));
  EXPECT_EQ(0, Tavix_VoDel());
  ExpectShown({});
}

TEST_F(TracedLine, TakingBackAVertexOffTheScreenKeepsTheRest) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(200, 160));
  Tavix_VoStt();
  for (const POINT at : {POINT{20, 30}, POINT{120, 90}, POINT{400, -300}, POINT{500, -300}}) {
    AddPixel(at);
  }
  EXPECT_EQ(0, Tavix_VoDel());
  EXPECT_EQ(0, Tavix_VoDel());
  ExpectShown({{{20, 30}, {120, 90}}});
}

TEST_F(TracedLine, ItsVerticesAreReadBack) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(200, 160));
  Tavix_VoStt();
  for (int i = 0; i < 5; ++i) EXPECT_EQ(0, Tavix_VoAdd(i + 0.25, -i * 1e6));
  double x[6] = {};
  double y[6] = {};
  x[5] = y[5] = 77;
  EXPECT_EQ(0, Tavix_VoLst(x, y));
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(i + 0.25, x[i]);
    EXPECT_EQ(-i * 1e6, y[i]);
    Ground at{};
    EXPECT_EQ(0, Tavix_VoIdx(i, &at.x, &at.y));
    EXPECT_EQ(x[i], at.x);
    EXPECT_EQ(y[i], at.y);
  }
  EXPECT_EQ(77, x[5]);
  EXPECT_EQ(77, y[5]);
  for (const int index : {-1, 5, INT_MAX, INT_MIN}) {
    Ground at{7, 8};
    EXPECT_EQ(-1, Tavix_VoIdx(index, &at.x, &at.y)) << index;
    EXPECT_EQ(7, at.x);
    EXPECT_EQ(8, at.y);
  }
}

TEST_F(TracedLine, EndAndStartTakeItOff) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(200, 160));
  for (int (*const off)() : {&Tavix_VoEnd, &Tavix_VoStt}) {
    for (const POINT at : {POINT{20, 30}, POINT{120, 90}, POINT{30, 140}}) AddPixel(at);
    EXPECT_EQ(0, off());
    EXPECT_EQ(0, Count());
    ExpectShown({});
  }
}

TEST_F(TracedLine, StartsAfreshAlsoWhenNothingShows) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(200, 160));
  AddPixel({20, 30});
  EXPECT_EQ(0, Tavix_VoStt());
  EXPECT_EQ(0, Count());
  AddPixel({120, 90});
  ExpectShown({});
}

TEST_F(TracedLine, LeavesNoTraceWhateverHappensBetween) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(200, 160));
  ExpectNoTrace(
      [] {
        Tavix_VoStt();
        for (const POINT at : {POINT{20, 30}, POINT{120, 90}, POINT{30, 140}}) AddPixel(at);
      },
      [] {
        Tavix_VoDel();
        AddPixel({180, 20});
        Tavix_VoEnd();
      });
}

// The view has changed, the picture has not yet.
TEST_F(TracedLine, VertexComesOffWhereItsSegmentWasDrawn) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(200, 160));
  for (const POINT at : {POINT{20, 30}, POINT{120, 90}, POINT{30, 140}}) AddPixel(at);
  Tavix_SetAng(180);
  Tavix_SetTatYok(1, 100);
  EXPECT_EQ(0, Tavix_VoDel());
  EXPECT_TRUE(SamePicture(Raw({{{20, 30}, {120, 90}}}), TakeClientPicture(Window())));
  EXPECT_EQ(0, Tavix_VoDel());
  EXPECT_TRUE(SamePicture(Raw({}), TakeClientPicture(Window())));
}

TEST_F(TracedLine, NeedsAWindow) {
  ASSERT_EQ(0, Tavix_Crt());
  int count = 77;
  double x = 7;
  double y = 8;
  EXPECT_EQ(-1, Tavix_VoStt());
  EXPECT_EQ(-1, Tavix_VoAdd(0, 0));
  EXPECT_EQ(-1, Tavix_VoDel());
  EXPECT_EQ(-1, Tavix_VoGet(&count));
  EXPECT_EQ(-1, Tavix_VoLst(&x, &y));
  EXPECT_EQ(-1, Tavix_VoIdx(0, &x, &y));
  EXPECT_EQ(-1, Tavix_VoEnd());
  EXPECT_EQ(77, count);
  EXPECT_EQ(7, x);
  EXPECT_EQ(8, y);
}

}  // namespace
}  // namespace tavix::test
