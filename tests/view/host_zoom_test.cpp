// Zooms and pans by the host, fits to the data, and the view the whole button goes back to.
#include <tavix/tavix.h>

#include "tests/support/interaction_test.h"
#include "tests/support/picture_compare.h"

namespace tavix::test {
namespace {

class HostZoom : public InteractionTest {
 protected:
  // 100 m east and 50 m north around (225, 350).
  void EnterBox() {
    ASSERT_EQ(0, EnterPoint(1, {200.0, 300.0}));
    ASSERT_EQ(0, EnterPoint(2, {250.0, 400.0}));
  }
};

TEST_F(HostZoom, FitsTheDataWithAMargin) {
  EnterBox();
  EXPECT_EQ(0, Tavix_Drw(0));
  EXPECT_NEAR(2.2, Scale(), 1e-9);
  const Ground centre = Captured({120, 90});
  EXPECT_DOUBLE_EQ(225.0, centre.x);
  EXPECT_DOUBLE_EQ(350.0, centre.y);
}

TEST_F(HostZoom, FitsTheTurnedData) {
  EnterBox();
  Tavix_SetAng(90);
  EXPECT_EQ(0, Tavix_Drw(0));
  EXPECT_NEAR(1.6, Scale(), 1e-9);
}

TEST_F(HostZoom, FitsTheExaggeratedData) {
  EnterBox();
  Tavix_SetTatYok(2, 1);  // a square of 100
  EXPECT_EQ(0, Tavix_Drw(0));
  EXPECT_NEAR(1.6, Scale(), 1e-9);
}

TEST_F(HostZoom, ShowsABoxWithoutAMargin) {
  const struct {
    double x1, y1, x2, y2;
    double scale;
  } rows[] = {
      {200.0, 300.0, 250.0, 400.0, 2.4},
      {200.0, 300.0, 290.0, 310.0, 2.0},
      {200.0, 300.0, 200.0, 340.0, 6.0},
      {200.0, 300.0, 240.0, 300.0, 4.5},
      {200.0, 300.0, 200.0, 300.0, 1.0},
      {250.0, 400.0, 200.0, 300.0, 1.0},               // negative both ways
      {200.0, 300.0, 200.00001, 300.00002, 100000.0},  // the cap
  };
  for (const auto& row : rows) {
    EXPECT_EQ(0, Tavix_Zom(row.x1, row.y1, row.x2, row.y2));
    EXPECT_NEAR(1.0, row.scale / Scale(), 1e-6) << row.x2 << ", " << row.y2;
    const Ground centre = Captured({120, 90});
    EXPECT_NEAR((row.x1 + row.x2) / 2, centre.x, 1e-9);
    EXPECT_NEAR((row.y1 + row.y2) / 2, centre.y, 1e-9);
  }
}

TEST_F(HostZoom, ShowsTheSquareAroundACircle) {
  EXPECT_EQ(0, Tavix_Zom1(10.0, 20.0, 45.0));
  EXPECT_NEAR(2.0, Scale(), 1e-9);
  EXPECT_EQ(0, Tavix_Zom1(10.0, 20.0, 0.000001));
  EXPECT_NEAR(1.0, Scale(), 1e-9);
  EXPECT_DOUBLE_EQ(10.0, Captured({120, 90}).x);
}

TEST_F(HostZoom, OfOnePointIsOnePixelAMetre) {
  Tavix_Zom(0.0, 0.0, 1.0, 1.0);
  ASSERT_EQ(0, EnterPoint(1, {10.0, 20.0}));
  EXPECT_EQ(0, Tavix_Drw(0));
  EXPECT_TRUE(SamePicture(CrossesAt({{120, 90}}), Shown()));
}

TEST_F(HostZoom, KeepsTheHomeViewForTheWholeButton) {
  EnterBox();
  Press(kWholeViewButton);
  const Picture home = Shown();
  Tavix_Zom(200.0, 300.0, 250.0, 400.0);
  const Picture zoomed = Shown();
  ASSERT_FALSE(home == zoomed);
  ExpectWholeViewAndBack(home, zoomed);
  Press(kWholeViewButton);
  EXPECT_EQ(0, Tavix_Pan(210.0, 330.0));
  const Picture panned = Shown();
  ExpectWholeViewAndBack(home, panned);
}

TEST_F(HostZoom, HasNoPartInMov) {
  EnterBox();
  const Picture before = Redrawn();
  EXPECT_EQ(0, Tavix_Mov());
  EXPECT_FALSE(AwaitsPaint());
  EXPECT_TRUE(SamePicture(before, Redrawn()));
}

// The host's turn is not the user's: it leaves the whole view as it was fitted.
TEST_F(HostZoom, IsNotFittedAnewAfterTheHostTurnsTheView) {
  EnterBox();
  Press(kWholeViewButton);
  Tavix_SetAng(90);
  Tavix_Zom(0.0, 0.0, 90.0, 90.0);
  Press(kWholeViewButton);
  EXPECT_NEAR(2.2, Scale(), 1e-9);
}

TEST_F(HostZoom, FitsTheDraggedPointToo) {
  EnterBox();
  ASSERT_EQ(0, Tavix_MvPntStt(legend_));
  Tavix_MvPntMov(200.0, 520.0);
  EXPECT_EQ(0, Tavix_Drw(0));
  EXPECT_NEAR(1.0, Scale(), 1e-9);  // 220 m east
  Tavix_MvPntEnd();
  EXPECT_EQ(0, Tavix_Drw(0));
  EXPECT_NEAR(2.2, Scale(), 1e-9);
}

TEST_F(HostZoom, LeavesThePaperScaleToTheButtons) {
  ASSERT_EQ(0, Tavix_SetWak(1, 254, 2970, 254, 2100));
  int before = 0;
  int after = 0;
  ASSERT_EQ(0, Tavix_GetWakScl(&before));
  Tavix_Zom(0.0, 0.0, 10.0, 10.0);
  EXPECT_EQ(0, Tavix_GetWakScl(&after));
  EXPECT_EQ(before, after);
  for (const ButtonId button : {kZoomInButton, kZoomOutButton}) {
    Press(button);
    EXPECT_EQ(0, Tavix_GetWakScl(&after));
    EXPECT_NE(before, after) << button;
    before = after;
  }
}

}  // namespace
}  // namespace tavix::test
