// The arrow keys: each press pans by half the drawing area, or works on the side view.
#include <tavix/tavix.h>

#include "tests/support/interaction_test.h"

namespace tavix::test {
namespace {

// The ground in the middle of the drawing area of 220 by 180 pixels.
constexpr POINT kMiddle{110, 90};

class ArrowKeys : public InteractionTest {
 protected:
  void SetUp() override {
    InteractionTest::SetUp();
    MakePlotWithButtons(240, 180);
  }

  void ExpectCentre(double x, double y, const char* what) {
    const Ground centre = Captured(kMiddle);
    EXPECT_DOUBLE_EQ(x, centre.x) << what;
    EXPECT_DOUBLE_EQ(y, centre.y) << what;
  }
};

TEST_F(ArrowKeys, PanByHalfTheDrawingArea) {
  const struct {
    int key;
    double x;
    double y;
    const char* name;
  } rows[] = {{VK_LEFT, 0.0, -110.0, "left"},  {VK_UP, 90.0, 0.0, "up"},
              {VK_RIGHT, 0.0, 110.0, "right"}, {VK_DOWN, -90.0, 0.0, "down"},
              {VK_HOME, 0.0, 0.0, "home"},     {VK_SPACE, 0.0, 0.0, "space"}};
  for (const auto& [key, x, y, name] : rows) {
    Tavix_Pan(0.0, 0.0);
    PressKey(key, Window());
    ExpectCentre(x, y, name);
  }
}

TEST_F(ArrowKeys, ReachThePlotFromItsButtons) {
  PressKey(VK_UP, ButtonWindow(kPanButton));
  ExpectCentre(90.0, 0.0, "from a button");
}

TEST_F(ArrowKeys, OfTheHostAreNotTaken) {
  PressKey(VK_UP, host_.Window());
  ExpectCentre(0.0, 0.0, "of the host");
}

TEST_F(ArrowKeys, RestWithoutTheButtonsAndInABandZoom) {
  Press(kBandZoomButton);
  PressKey(VK_UP, Window());
  Press(kBandZoomButton);
  ExpectCentre(0.0, 0.0, "band zoom");
  Tavix_SetBtn(0);
  PressKey(VK_UP, Window());
  Tavix_SetBtn(1);
  ExpectCentre(0.0, 0.0, "no buttons");
  Press(kPanButton);
  PressKey(VK_UP, Window());
  Press(kPanButton);
  ExpectCentre(90.0, 0.0, "pan mode");
}

TEST_F(ArrowKeys, PanWithAScrolledColumnToo) {
  MakePlotWithButtons(240, 100);
  Press(kScrollDownButton);  // the first main button is hidden now, the scroll button is not
  ASSERT_FALSE(::IsWindowVisible(ButtonWindow(kBandZoomButton)));
  PressKey(VK_UP, Window());
  EXPECT_DOUBLE_EQ(50.0, Captured({110, 50}).x);
}

TEST_F(ArrowKeys, TurnTheSideView) {
  Tavix_Dsp3D(1);
  PressKey(VK_LEFT, Window());
  EXPECT_EQ(10, Angle());
  PressKey(VK_RIGHT, Window());
  PressKey(VK_RIGHT, Window());
  EXPECT_EQ(350, Angle());
  PressKey(VK_UP, Window());
  PressKey(VK_DOWN, Window());
  EXPECT_EQ(350, Angle());
  Tavix_Dsp3D(0);
  ExpectCentre(0.0, 0.0, "the plan stays");
}

}  // namespace
}  // namespace tavix::test
