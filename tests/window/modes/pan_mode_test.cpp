// Pan mode: a tap centres the view, a drag moves the map.
#include <tavix/tavix.h>

#include "tests/support/interaction_test.h"
#include "tests/support/picture_compare.h"

namespace tavix::test {
namespace {

class PanMode : public InteractionTest {
 protected:
  void SetUp() override {
    InteractionTest::SetUp();
    ASSERT_EQ(0, EnterPoint(1, {10.0, 20.0}));
    Press(kPanButton);
  }
};

TEST_F(PanMode, CentresTheViewOnATap) {
  Tap({140, 80});
  EXPECT_TRUE(SamePicture(CrossesAt({{120, 90}}), Shown()));
  EXPECT_EQ(Commands(), Reports());  // and picks nothing
}

TEST_F(PanMode, CentresTheViewWhereATapIsLifted) {
  PutDown({131, 71});
  Lift({140, 80});
  EXPECT_TRUE(SamePicture(CrossesAt({{120, 90}}), Shown()));
}

TEST_F(PanMode, MovesTheMapWithTheStylus) {
  const struct {
    POINT from;
    POINT to;
  } rows[] = {{{50, 50}, {80, 50}}, {{80, 50}, {50, 50}},    {{100, 20}, {100, 60}},
              {{10, 10}, {20, 19}}, {{200, 100}, {150, 70}}, {{230, 90}, {260, 90}}};
  for (const auto& [from, to] : rows) {
    Tavix_Pan(0.0, 0.0);
    Drag(from, to);
    EXPECT_TRUE(SamePicture(CrossesAt({{140 + to.x - from.x, 80 + to.y - from.y}}), Shown()))
        << from.x << ", " << from.y;
  }
}

// The drawing area's middle lies ten pixels left of the window's then; taken for the other, the map
// would stay ten pixels behind the stylus.
TEST_F(PanMode, MovesTheMapWithTheStylusBesideTheButtonColumn) {
  MakePlotWithButtons(260, 180);
  Press(kPanButton);
  Drag({50, 50}, {80, 50});
  EXPECT_TRUE(SamePicture(LeftPart(CrossesAt({{170, 80}}), 240), LeftPart(Shown(), 240)));
}

TEST_F(PanMode, MovesTheMapByPixelsAtAnyScaleAngleAndRatio) {
  Tavix_Zom(-45.0, -60.0, 45.0, 60.0);
  Tavix_SetTatYok(2, 1);
  for (const int angle : {0, 90, 180, 270}) {
    Tavix_SetAng(angle);
    Tavix_Pan(10.0, 20.0);
    Drag({50, 50}, {80, 90});
    const Picture shown = Shown();  // with a north arrow when turned
    for (const POINT end : {POINT{146, 130}, {154, 130}, {150, 126}, {150, 134}}) {
      EXPECT_EQ(0xFF0000U, shown.At(end.x, end.y)) << angle;
    }
    EXPECT_EQ(0xFFFFFFU, shown.At(145, 130)) << angle;
    EXPECT_EQ(0xFFFFFFU, shown.At(150, 135)) << angle;
  }
}

TEST_F(PanMode, DrawsNothingDuringADrag) {
  const Picture before = Shown();
  PutDown({50, 50});
  MoveTo({100, 100});
  EXPECT_TRUE(SamePicture(before, Shown()));
}

TEST_F(PanMode, StaysUntilPressedAgain) {
  Drag({50, 50}, {80, 50});
  Drag({50, 50}, {80, 50});
  EXPECT_TRUE(SamePicture(CrossesAt({{200, 80}}), Shown()));
  Press(kPanButton);
  Drag({50, 50}, {80, 50});
  EXPECT_TRUE(SamePicture(CrossesAt({{200, 80}}), Shown()));
  Tap({200, 80});
  EXPECT_EQ((Commands{{kNotifyId, 1}}), Reports());
}

TEST_F(PanMode, LeavesTheOthersEnabled) {
  MakePlotWithButtons(240, 180);
  Press(kPanButton);
  for (const ButtonRow& button : kButtonTable) {
    EXPECT_TRUE(::IsWindowEnabled(ButtonWindow(button.id))) << button.id;
  }
}

TEST_F(PanMode, EndsWithABandZoom) {
  Press(kBandZoomButton);
  Drag({60, 45}, {180, 135});
  const Picture zoomed = CrossesAt({{160, 70}});
  EXPECT_TRUE(SamePicture(zoomed, Shown()));
  Drag({50, 50}, {80, 50});  // pan mode does not come back
  EXPECT_TRUE(SamePicture(zoomed, Shown()));
}

TEST_F(PanMode, EndsABandZoomAndItsCorner) {
  Press(kPanButton);
  Press(kBandZoomButton);
  Tap({60, 45});
  Press(kPanButton);
  Drag({50, 50}, {80, 50});
  EXPECT_TRUE(SamePicture(CrossesAt({{170, 80}}), Shown()));
  Press(kPanButton);
  Press(kBandZoomButton);
  Tap({180, 135});  // a first corner again
  EXPECT_TRUE(SamePicture(CrossesAt({{170, 80}}), Shown()));
}

TEST_F(PanMode, LeavesTheHomeViewAlone) {
  ASSERT_EQ(0, EnterPoint(2, {10.0, 130.0}));
  Press(kWholeViewButton);
  const Picture home = Shown();
  Drag({50, 50}, {80, 70});
  Press(kWholeViewButton);
  EXPECT_TRUE(SamePicture(home, Shown()));
}

}  // namespace
}  // namespace tavix::test
