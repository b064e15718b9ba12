// Taps on points, which are not drags, and what they report to the host.
#include <tavix/tavix.h>

#include <limits>

#include "tests/support/interaction_test.h"
#include "tests/support/picture_compare.h"

namespace tavix::test {
namespace {

constexpr POINT kMiddle{120, 90};
class StylusTap : public InteractionTest {};

TEST_F(StylusTap, OnAPointTellsTheHostItsKey) {
  for (const int key :
       {1, 0, -5, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
    Tavix_DrwClr();
    ASSERT_EQ(0, EnterPoint(key, {0.0, 0.0}));
    Tap(kMiddle);
    EXPECT_EQ((Commands{{kNotifyId, key}}), Reports()) << key;
  }
}

TEST_F(StylusTap, IsPostedToTheHostNotSent) {
  ASSERT_EQ(0, EnterPoint(1, {0.0, 0.0}));
  ::SendMessageW(Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(120, 90));
  ::SendMessageW(Window(), WM_LBUTTONUP, 0, MAKELPARAM(120, 90));
  EXPECT_TRUE(host_.Commands().empty());
  MSG message;
  ASSERT_TRUE(::PeekMessageW(&message, host_.Window(), WM_COMMAND, WM_COMMAND, PM_REMOVE));
  EXPECT_EQ(kNotifyId, message.wParam);
  EXPECT_EQ(1, message.lParam);
  EXPECT_EQ(Commands(), Reports());
}

TEST_F(StylusTap, ReportsUnderTheIdOfTheLatestLink) {
  ASSERT_EQ(0, LinkPlot(240, 180, {10, 10}, 65535));
  Tavix_SetBtn(0);
  Tavix_Dsp(1);
  ASSERT_EQ(0, EnterPoint(1, {0.0, 0.0}));
  Tap(kMiddle);
  EXPECT_EQ((Commands{{65535, 1}}), Reports());
}

TEST_F(StylusTap, OnNothingIsIgnored) {
  Tap(kMiddle);  // no points at all
  ASSERT_EQ(0, EnterPoint(1, {50.0, 0.0}));
  Tap(kMiddle);
  EXPECT_EQ(Commands(), Reports());
}

TEST_F(StylusTap, MovesLessThanTenPixelsBothWays) {
  const struct {
    int dx;
    int dy;
    bool tap;
  } rows[] = {
      {0, 0, true},    {9, 9, true},     {-9, -9, true},  {9, -9, true},    {10, 0, false},
      {-10, 0, false}, {0, 10, false},   {0, -10, false}, {10, 10, false},  {9, 10, false},
      {10, 9, false},  {100, 80, false}, {400, 0, false}, {-300, 0, false},
  };
  for (const auto& [dx, dy, tap] : rows) {
    Tavix_DrwClr();
    ASSERT_EQ(0, EnterPoint(1, GroundAt({120 + dx, 90 + dy})));
    PutDown(kMiddle);
    MoveTo({120 + dx, 90 + dy});
    Lift({120 + dx, 90 + dy});
    EXPECT_EQ(tap ? Commands({{kNotifyId, 1}}) : Commands(), Reports()) << dx << ", " << dy;
  }
}

TEST_F(StylusTap, IsJudgedByItsEndsNotByItsWay) {
  ASSERT_EQ(0, EnterPoint(1, {0.0, 0.0}));
  PutDown(kMiddle);
  MoveTo({200, 20});
  Lift(kMiddle);
  EXPECT_EQ((Commands{{kNotifyId, 1}}), Reports());
}

TEST_F(StylusTap, PicksWhereItIsLifted) {
  ASSERT_EQ(0, EnterPoint(1, GroundAt({100, 90})));
  ASSERT_EQ(0, EnterPoint(2, GroundAt({139, 90})));
  PutDown(kMiddle);
  Lift({129, 90});
  EXPECT_EQ((Commands{{kNotifyId, 2}}), Reports());
}

TEST_F(StylusTap, NeedsBothEnds) {
  ASSERT_EQ(0, EnterPoint(1, {0.0, 0.0}));
  Lift(kMiddle);  // went down somewhere else
  EXPECT_EQ(Commands(), Reports());
  PutDown(kMiddle);
  EXPECT_EQ(Commands(), Reports());
  Lift(kMiddle);
  EXPECT_EQ(1U, Reports().size());
  Lift(kMiddle);
  EXPECT_EQ(Commands(), Reports());
}

TEST_F(StylusTap, LeavesTheViewAlone) {
  ASSERT_EQ(0, EnterPoint(1, {0.0, 0.0}));
  const Picture before = Redrawn();
  Tap(kMiddle);
  Tap({20, 20});
  Drag({20, 20}, {200, 150});
  EXPECT_TRUE(SamePicture(before, Redrawn()));
}

TEST_F(StylusTap, LeavesItsLastPixelBehind) {
  int x = -1;
  int y = -1;
  EXPECT_EQ(0, Tavix_GetLstPicCrd(&x, &y));
  EXPECT_EQ(0, x);
  EXPECT_EQ(0, y);
  const struct {
    POINT down;
    POINT up;
  } rows[] = {{{20, 30}, {20, 30}},    // a tap on nothing
              {{20, 30}, {29, 37}},    // the end counts
              {{20, 30}, {100, 110}},  // drags too
              {{20, 30}, {-5, 700}},   // outside of the window
              {{20, 30}, {0, 0}}};
  for (const auto& [down, up] : rows) {
    Drag(down, up);
    EXPECT_EQ(up.y, Tavix_GetLstPicCrd(&x, &y));
    EXPECT_EQ(up.x, x);
    EXPECT_EQ(up.y, y);
  }
}

TEST_F(StylusTap, LeavesItsPixelInEveryMode) {
  int x = 0;
  int y = 0;
  const struct {
    ButtonId mode;
    int x;
  } rows[] = {{kBandZoomButton, 55}, {kPanButton, 71}};
  for (const auto& row : rows) {
    Press(row.mode);
    Tap({row.x, 7});
    EXPECT_EQ(7, Tavix_GetLstPicCrd(&x, &y));
    EXPECT_EQ(row.x, x);
  }
  Tavix_CrdStt(5);
  Tavix_CrdEnd();
  EXPECT_EQ(7, Tavix_GetLstPicCrd(&x, &y));
}

TEST_F(StylusTap, KeepsTheStylusUntilItIsLifted) {
  PutDown(kMiddle);
  EXPECT_EQ(Window(), ::GetCapture());
  Lift({500, 400});
  EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(StylusTap, OnAButtonNeverReachesThePlot) {
  MakePlotWithButtons(240, 180);
  for (const bool enabled : {true, false}) {
    for (const ButtonRow& button : kButtonTable) ::EnableWindow(ButtonWindow(button.id), enabled);
    for (int top = 0; top < 180; top += 20) {
      Tavix_DrwClr();
      const POINT on_button{230, top + 10};
      ASSERT_EQ(0, EnterPoint(1, {80.0 - top, 120.0}));  // under the tap
      Tap(on_button);  // as the window gets it from a disabled button
      EXPECT_EQ(Commands(), Reports()) << top;
    }
  }
}

TEST_F(StylusTap, PicksNothingInTheSideView) {
  ASSERT_EQ(0, EnterPoint(1, {0.0, 0.0}));
  Tavix_Dsp3D(1);
  for (int y = 0; y < 180; y += 30) Tap({120, y});
  EXPECT_TRUE(Reports().empty());
}

}  // namespace
}  // namespace tavix::test
