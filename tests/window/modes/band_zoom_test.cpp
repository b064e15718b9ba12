// Band zoom: the user marks the rectangle to show.
#include <tavix/tavix.h>

#include "tests/support/interaction_test.h"
#include "tests/support/picture_compare.h"

namespace tavix::test {
namespace {

class BandZoom : public InteractionTest {
 protected:
  void SetUp() override {
    InteractionTest::SetUp();
    ASSERT_EQ(0, EnterPoint(1, {10.0, 20.0}));
    Press(kRefreshButton);
    Press(kBandZoomButton);
  }

  static Picture Before() { return CrossesAt({{140, 80}}); }

  // The rectangle from (60, 45) to (180, 135) fills the window at two pixels a metre.
  static Picture Zoomed() { return CrossesAt({{160, 70}}); }

  static bool IsEnabled(unsigned button) {
    return ::IsWindowEnabled(ButtonWindow(button)) != FALSE;
  }
};

TEST_F(BandZoom, ShowsTheRectangleOfADrag) {
  const POINT corners[] = {{60, 45}, {180, 45}, {180, 135}, {60, 135}};
  for (int first = 0; first < 4; ++first) {
    Tavix_Zom(-90.0, -120.0, 90.0, 120.0);  // one pixel a metre
    Drag(corners[first], corners[(first + 2) % 4]);
    EXPECT_TRUE(SamePicture(Zoomed(), Shown())) << first;
    Press(kBandZoomButton);  // it ended by itself
  }
}

TEST_F(BandZoom, ShowsTheRectangleOfTwoTaps) {
  Tap({60, 135});
  EXPECT_TRUE(SamePicture(Before(), Shown()));
  Tap({180, 45});
  EXPECT_TRUE(SamePicture(Zoomed(), Shown()));
  EXPECT_EQ(Commands(), Reports());
}

TEST_F(BandZoom, TakesATapsPixelWhereItIsLifted) {
  PutDown({53, 52});
  Lift({60, 45});
  PutDown({173, 128});
  Lift({180, 135});
  EXPECT_TRUE(SamePicture(Zoomed(), Shown()));
}

TEST_F(BandZoom, TakesADragAfterATapForItsEndAlone) {
  Tap({60, 45});
  Drag({100, 100}, {180, 135});
  EXPECT_TRUE(SamePicture(Zoomed(), Shown()));
}

TEST_F(BandZoom, TakesMovesOfTenPixelsForDrags) {
  const struct {
    POINT to;
    bool zooms;
  } rows[] = {{{129, 99}, false}, {{130, 90}, true}, {{120, 100}, true}, {{111, 81}, false}};
  for (const auto& [to, zooms] : rows) {
    Tavix_Zom(-90.0, -120.0, 90.0, 120.0);
    Drag({120, 90}, to);
    EXPECT_EQ(zooms, Shown() != Before()) << to.x << ", " << to.y;
    if (!zooms) Press(kBandZoomButton);
    Press(kBandZoomButton);
  }
}

TEST_F(BandZoom, EndsADragOutsideOfTheWindow) {
  Drag({180, 135}, {-60, -45});  // one pixel a metre around the ground under (60, 45)
  EXPECT_TRUE(SamePicture(CrossesAt({{200, 125}}), Shown()));
}

TEST_F(BandZoom, OfOnePixelTwiceIsOnePixelAMetre) {
  Tavix_Zom(-45.0, -60.0, 45.0, 60.0);
  Tap({120, 90});
  Tap({120, 90});
  EXPECT_TRUE(SamePicture(Before(), Shown()));
}

TEST_F(BandZoom, EndsAfterOneRectangle) {
  Drag({60, 45}, {180, 135});
  Drag({100, 100}, {150, 150});
  EXPECT_TRUE(SamePicture(Zoomed(), Shown()));
  Tap({160, 70});
  EXPECT_EQ((Commands{{kNotifyId, 1}}), Reports());
}

TEST_F(BandZoom, ForgetsItsCornerWhenTurnedOff) {
  Tap({10, 10});
  Press(kBandZoomButton);
  Press(kBandZoomButton);
  Tap({60, 45});
  EXPECT_TRUE(SamePicture(Before(), Shown()));
  Tap({180, 135});
  EXPECT_TRUE(SamePicture(Zoomed(), Shown()));
}

TEST_F(BandZoom, PicksNothing) {
  Tap({140, 80});
  EXPECT_EQ(Commands(), Reports());
}

TEST_F(BandZoom, LeavesTheHomeViewAlone) {
  Press(kBandZoomButton);
  ASSERT_EQ(0, EnterPoint(2, {10.0, 130.0}));
  Press(kWholeViewButton);
  const Picture home = Shown();
  Press(kBandZoomButton);
  Drag({60, 45}, {180, 135});
  const Picture zoomed = Shown();
  ASSERT_FALSE(home == zoomed);
  ExpectWholeViewAndBack(home, zoomed);
}

TEST_F(BandZoom, CountsTheRatio) {
  Tavix_SetTatYok(2, 1);
  Drag({60, 0}, {180, 180});  // 120 m east, 90 m north: 180 by the ratio
  EXPECT_DOUBLE_EQ(1.0, Scale());
}

TEST_F(BandZoom, TurnedShowsTheGroundBoxOfItsCorners) {
  Tavix_SetAng(90);
  Drag({60, 45}, {180, 135});  // 90 m east and 120 m north, turned back to 120 by 90
  EXPECT_NEAR(2.0, Scale(), 1e-12);
}

TEST_F(BandZoom, DisablesTheOtherButtonsWhileItLasts) {
  Press(kBandZoomButton);
  MakePlotWithButtons(240, 180);
  const auto expect_others = [](bool enabled) {
    for (const ButtonRow& button : kButtonTable) {
      // Hidden ones, which scroll a column that is too long, are left alone.
      const bool left_alone =
          button.id == kBandZoomButton || !::IsWindowVisible(ButtonWindow(button.id));
      EXPECT_EQ(enabled || left_alone, IsEnabled(button.id)) << button.id;
    }
  };
  Press(kBandZoomButton);
  expect_others(false);
  Press(kBandZoomButton);
  expect_others(true);
  Press(kBandZoomButton);
  Tap({60, 45});
  expect_others(false);
  Tap({180, 135});
  expect_others(true);
}

TEST_F(BandZoom, EnablesButtonsHiddenMeanwhile) {
  Press(kBandZoomButton);
  MakePlotWithButtons(240, 180);
  Press(kBandZoomButton);
  Tavix_SetBtn(0);
  Press(kBandZoomButton);
  Tavix_SetBtn(1);
  for (const ButtonRow& button : kButtonTable) EXPECT_TRUE(IsEnabled(button.id)) << button.id;
}

}  // namespace
}  // namespace tavix::test
