// The stylus in the 3-D side view: the rectangle of a band zoom lies on the ground of the view.
#include "tests/support/plot_input.h"
#include "tests/support/raw_overlays.h"
#include "tests/support/side_plot_test.h"

namespace tavix::test {
namespace {

constexpr PointLegend kSquare{6, 9, 0, 0, 1, RGB(0, 0, 255)};

class SideViewStylus : public SidePlotTest {
 protected:
  static Picture Outlined(const POINT (&outline)[5]) {
    const RawCanvas canvas(Window());
    DrawRawSideView(canvas.Dc(), {kWidth, kHeight}, {}, L"0.00m");
    XorRawBand(canvas.Dc(), outline);
    return canvas.Take();
  }
};

// The side corners are worked by hand from the two others: both taken back to the plan, the plan
// rectangle's other corners projected again.
TEST_F(SideViewStylus, BandRunsAlongTheProjectedAxes) {
  const struct {
    POINT down;
    POINT current;
    POINT beside;  // at the current point's plan x and the down point's plan y
    POINT other;
  } rows[] = {{{90, 60}, {170, 150}, {207, 127}, {51, 81}},
              {{150, 140}, {100, 50}, {46, 80}, {201, 109}},
              {{60, 90}, {200, 120}, {155, 145}, {103, 64}}};
  Redrawn();
  Press(kBandZoomButton);
  for (const auto& [down, current, beside, other] : rows) {
    PutDown(down);
    MoveTo({5, 5});
    MoveTo(current);
    EXPECT_TRUE(
        SamePicture(Outlined({down, beside, current, other, down}), TakeClientPicture(Window())))
        << down.x << ", " << down.y;
    MoveTo(down);
    EXPECT_TRUE(SamePicture(SideView({}), TakeClientPicture(Window()))) << "no trace";
  }
}

// Plan pixels (24, 63) and (175, 126) are what lies under the two: 151 by 63 metres about the plan
// pixel (99.5, 94.5), so 240 pixels show 151 m.
TEST_F(SideViewStylus, BandZoomsToThePlanRectangle) {
  EnterSide(1, GroundAt({99, 94}), 0.0, AddLegend(kSquare));
  Redrawn();
  Press(kBandZoomButton);
  PutDown({90, 60});
  MoveTo({170, 150});
  Lift({170, 150});
  // Half a metre beside the new middle, at 1.589 pixels a metre.
  EXPECT_TRUE(SamePicture(SideView({{{119, 89}, 0, kSquare, L""}}), Shown()));
}

TEST_F(SideViewStylus, MapFollowsADrag) {
  EnterSide(1, {0.0, 0.0}, 0.0, AddLegend(kSquare));
  Redrawn();
  Press(kPanButton);
  // From plan pixel (24, 63) to (175, 126).
  PutDown({90, 60});
  Lift({170, 150});
  EXPECT_TRUE(SamePicture(SideView({{{120 + 151, 90 + 63}, 0, kSquare, L""}}), Shown()));
}

TEST_F(SideViewStylus, TapPicksNothing) {
  EnterSide(1, {0.0, 0.0}, 0.0, AddLegend(kSquare));
  ASSERT_EQ(0, Enter(1, {0.0, 0.0}, 2));
  Redrawn();
  for (const POINT at : {POINT{120, 90}, OnSide({120, 90}, kHeight)}) {
    PutDown(at);
    Lift(at);
  }
  EXPECT_TRUE(host_.Commands().empty());
}

// What belongs to the plan waits for the plan.
TEST_F(SideViewStylus, NothingOfThePlanIsDrawnAtOnce) {
  Redrawn();
  Tavix_DrwFlg(1);
  const short legend = AddLegend(kSquare);
  ASSERT_EQ(0, Enter(1, {10.0, 10.0}, legend));
  ASSERT_EQ(0, Enter(2, {-30.0, 40.0}, legend));
  Tavix_SelLinHan(101);
  ASSERT_EQ(0, Tavix_EntLin(1, 2));
  ASSERT_EQ(0, Tavix_VoAdd(0.0, 0.0));
  ASSERT_EQ(0, Tavix_VoAdd(20.0, 50.0));
  EXPECT_TRUE(SamePicture(SideView({}), TakeClientPicture(Window())));
  ::InvalidateRect(Window(), nullptr, TRUE);
  EXPECT_TRUE(SamePicture(SideView({}), Shown())) << "nor into the back buffer";
  EXPECT_EQ(0, Tavix_VoDel());
  EXPECT_TRUE(SamePicture(SideView({}), TakeClientPicture(Window())));
}

}  // namespace
}  // namespace tavix::test
