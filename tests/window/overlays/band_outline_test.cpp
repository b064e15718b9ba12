// The dashed outline that follows the stylus while a zoom window is marked.
#include <tavix/tavix.h>

#include "tests/support/interaction_test.h"
#include "tests/support/picture_compare.h"
#include "tests/support/raw_canvas.h"
#include "tests/support/raw_overlays.h"

namespace tavix::test {
namespace {

constexpr POINT kFrom{40, 30};
constexpr POINT kTo{180, 140};
constexpr POINT kCrossing{180, 90};  // a point here is crossed by the outline to kTo

class BandOutline : public InteractionTest {
 protected:
  void SetUp() override {
    InteractionTest::SetUp();
    ASSERT_EQ(0, EnterPoint(1, GroundAt({100, 30})));
    ASSERT_EQ(0, EnterPoint(2, GroundAt({70, 70})));
    Press(kRefreshButton);
    Press(kBandZoomButton);
  }

  static Picture Plain() { return CrossesAt({{100, 30}, {70, 70}}); }

  // What is on the screen now, with the outline between two opposite corners over it.
  static Picture Outlined(const Picture& plain, POINT a, POINT b) {
    const RawCanvas canvas(Window());
    Put(canvas.Dc(), plain);
    XorRawBand(canvas.Dc(), {a, {b.x, a.y}, b, {a.x, b.y}, a});
    return canvas.Take();
  }

  // What the window shows with nothing painted for the picture's sake.
  static Picture OnScreen() { return TakeClientPicture(Window()); }

  static void HoldBand() {
    PutDown(kFrom);
    MoveTo(kTo);
  }

 private:
  static void Put(HDC dc, const Picture& picture) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = picture.width;
    info.bmiHeader.biHeight = -picture.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    ::SetDIBitsToDevice(
        dc, 0, 0, static_cast<DWORD>(picture.width), static_cast<DWORD>(picture.height), 0, 0, 0,
        static_cast<UINT>(picture.height), picture.pixels.data(), &info, DIB_RGB_COLORS);
  }
};

TEST_F(BandOutline, FollowsTheStylus) {
  PutDown(kFrom);
  for (const POINT to : {POINT{180, 140}, {60, 50}, {10, 10}, {200, 5}, {5, 170}, {239, 179}}) {
    MoveTo(to);
    EXPECT_TRUE(SamePicture(Outlined(Plain(), kFrom, to), OnScreen())) << to.x << ", " << to.y;
  }
}

TEST_F(BandOutline, FollowsTheStylusOutsideOfTheWindow) {
  HoldBand();
  MoveTo({-30, 300});
  EXPECT_TRUE(SamePicture(Outlined(Plain(), kFrom, {-30, 300}), OnScreen()));
}

TEST_F(BandOutline, MayBeFlat) {
  PutDown(kFrom);
  for (const POINT to : {POINT{150, 30}, {40, 120}, {41, 30}}) {
    MoveTo(to);
    EXPECT_TRUE(SamePicture(Outlined(Plain(), kFrom, to), OnScreen())) << to.x << ", " << to.y;
  }
}

TEST_F(BandOutline, IsNotThereWithoutSize) {
  EXPECT_TRUE(SamePicture(Plain(), OnScreen()));
  PutDown(kFrom);
  EXPECT_TRUE(SamePicture(Plain(), OnScreen()));
  MoveTo(kTo);
  MoveTo(kFrom);
  EXPECT_TRUE(SamePicture(Plain(), OnScreen()));
}

TEST_F(BandOutline, NeedsTheStylusDownAndTheMode) {
  MoveTo(kTo);
  EXPECT_TRUE(SamePicture(Plain(), OnScreen()));
  for (const ButtonId next_mode : {kPanButton, kPanButton}) {  // pan mode, then neither
    Press(next_mode);
    HoldBand();
    EXPECT_TRUE(SamePicture(Plain(), OnScreen()));
    Lift(kFrom);
    Tavix_Pan(0.0, 0.0);
    Shown();
  }
}

TEST_F(BandOutline, LeavesNoTraceOfATap) {
  PutDown(kFrom);
  MoveTo({46, 37});
  Lift({46, 37});
  EXPECT_TRUE(SamePicture(Plain(), OnScreen()));
}

TEST_F(BandOutline, LeavesNoTraceOnTheZoomedView) {
  Drag({60, 45}, {180, 135});  // two pixels a metre around the middle
  EXPECT_TRUE(SamePicture(CrossesAt({{80, -30}, {20, 50}}), Shown()));
}

TEST_F(BandOutline, OutlastsARepaint) {
  HoldBand();
  const Picture held = Outlined(Plain(), kFrom, kTo);
  for (const RECT part : {RECT{0, 0, 240, 180}, {0, 0, 100, 80}, {150, 100, 190, 180}}) {
    ::InvalidateRect(Window(), &part, TRUE);
    EXPECT_TRUE(SamePicture(held, Shown())) << part.right;
  }
  MoveTo(kFrom);
  EXPECT_TRUE(SamePicture(Plain(), OnScreen()));
}

TEST_F(BandOutline, OutlastsARepaintThatComesLate) {
  HoldBand();
  ::InvalidateRect(Window(), nullptr, TRUE);
  ::SendMessageW(Window(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(90, 120));
  ASSERT_TRUE(AwaitsPaint());
  EXPECT_TRUE(SamePicture(Outlined(Plain(), kFrom, {90, 120}), Shown()));
  ::InvalidateRect(Window(), nullptr, TRUE);
  ::SendMessageW(Window(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(kFrom.x, kFrom.y));
  EXPECT_TRUE(SamePicture(Plain(), Shown()));
}

TEST_F(BandOutline, OutlastsARedraw) {
  HoldBand();
  ASSERT_EQ(0, EnterPoint(3, GroundAt(kCrossing)));
  const Picture plain = CrossesAt({{100, 30}, {70, 70}, kCrossing});
  EXPECT_TRUE(SamePicture(Outlined(plain, kFrom, kTo), Redrawn()));
  MoveTo({190, 150});
  EXPECT_TRUE(SamePicture(Outlined(plain, kFrom, {190, 150}), OnScreen()));
  MoveTo(kFrom);
  EXPECT_TRUE(SamePicture(plain, OnScreen()));
}

TEST_F(BandOutline, LeavesNoTraceOnAPointDrawnMeanwhile) {
  Tavix_DrwFlg(1);
  HoldBand();
  ASSERT_EQ(0, EnterPoint(3, GroundAt(kCrossing)));
  const Picture plain = CrossesAt({{100, 30}, {70, 70}, kCrossing});
  EXPECT_TRUE(SamePicture(Outlined(plain, kFrom, kTo), OnScreen()));
  MoveTo(kFrom);
  EXPECT_TRUE(SamePicture(plain, OnScreen()));
}

TEST_F(BandOutline, LeavesNoTraceOnALineDrawnMeanwhile) {
  short solid = 0;
  ASSERT_EQ(0, Tavix_AddLinHan(101, 0, 0, 0, 1, 0, &solid));
  ASSERT_EQ(0, Tavix_SelLinHan(solid));
  ASSERT_EQ(0, EnterPoint(3, GroundAt({200, 30})));  // along the outline, and past its end
  ASSERT_EQ(0, EnterPoint(4, GroundAt({120, 170})));
  Redrawn();
  Tavix_DrwFlg(1);
  HoldBand();
  ASSERT_EQ(0, Tavix_EntLin(1, 3));
  ASSERT_EQ(0, Tavix_EntLin(3, 4));
  MoveTo(kFrom);
  const Picture shown = OnScreen();
  EXPECT_TRUE(SamePicture(Shown(), shown));
  ::InvalidateRect(Window(), nullptr, TRUE);
  EXPECT_TRUE(SamePicture(Shown(), shown));
}

TEST_F(BandOutline, GoesBeforeAnyCommand) {
  for (const unsigned command : {unsigned{kRefreshButton}, 999U}) {
    HoldBand();
    Press(command);
    EXPECT_TRUE(SamePicture(Plain(), Shown())) << command;
    MoveTo({60, 60});
    EXPECT_TRUE(SamePicture(Outlined(Plain(), kFrom, {60, 60}), Shown())) << command;
    Lift(kFrom);
    Press(kBandZoomButton);
    Press(kBandZoomButton);  // again, without a corner
  }
  HoldBand();
  Press(kBandZoomButton);
  EXPECT_TRUE(SamePicture(Plain(), Shown()));
  MoveTo({60, 60});
  EXPECT_TRUE(SamePicture(Plain(), Shown()));
}

TEST_F(BandOutline, GoesWhenTheStylusIsTakenAway) {
  HoldBand();
  ::SetCapture(host_.Window());
  EXPECT_TRUE(SamePicture(Plain(), Shown()));
  MoveTo({60, 60});
  Lift({60, 60});
  EXPECT_TRUE(SamePicture(Plain(), Shown()));
  ::ReleaseCapture();
  PutDown(kFrom);
  MoveTo({60, 60});
  EXPECT_TRUE(SamePicture(Outlined(Plain(), kFrom, {60, 60}), Shown()));
}

}  // namespace
}  // namespace tavix::test
