// The 3-D side view: what is shown in it, and what the plan keeps for itself.
#include "tests/support/low_byte.h"
#include "tests/support/side_plot_test.h"

namespace tavix::test {
namespace {

constexpr PointLegend kSquare{6, 9, 0, 0, 1, RGB(0, 0, 255)};

class SideView3D : public SidePlotTest {};

TEST_F(SideView3D, IsAnEmptyBoxAtFirst) {
  const Picture box = SideView({});
  EXPECT_TRUE(SamePicture(box, Redrawn()));
  EXPECT_GT(CountPixels(box, 0xFF0000), 300) << "the reference has its red box";
}

TEST_F(SideView3D, ProjectsTheCornersOfTheBoxAsWorkedByHand) {
  const struct {
    POINT plan;
    POINT side;
  } rows[] = {
      {{0, 180}, {0, 90}}, {{0, 0}, {109, 27}}, {{220, 0}, {280, 126}}, {{220, 180}, {171, 189}}};
  for (const auto& [plan, side] : rows) {
    const POINT at = OnSide(plan, 180);
    EXPECT_EQ(side.x, at.x);
    EXPECT_EQ(side.y, at.y);
  }
}

TEST_F(SideView3D, NeedsARedraw) {
  EXPECT_EQ(0, Tavix_Drw(1));
  const Picture side = Shown();
  EXPECT_EQ(0, Tavix_Dsp3D(0));
  EXPECT_FALSE(AwaitsPaint());
  ::InvalidateRect(Window(), nullptr, TRUE);
  EXPECT_TRUE(SamePicture(side, Shown())) << "the buffer still has the side view";
  EXPECT_TRUE(SamePicture(RawCanvas(Window()).Take(), Redrawn()));
}

TEST_F(SideView3D, TakesTheLowByteOfTheFlag) {
  EXPECT_EQ(0, CallWithWholeFlag(&Tavix_Dsp3D, 0x100));
  EXPECT_TRUE(SamePicture(RawCanvas(Window()).Take(), Redrawn()));
  EXPECT_EQ(0, CallWithWholeFlag(&Tavix_Dsp3D, 0x180));
  EXPECT_TRUE(SamePicture(SideView({}), Redrawn()));
}

TEST_F(SideView3D, TurnsTheViewBack) {
  ASSERT_EQ(0, Tavix_SetAng(40));
  EXPECT_EQ(0, Tavix_Dsp3D(1));
  int angle = -1;
  EXPECT_EQ(0, Tavix_GetAng(&angle));
  EXPECT_EQ(0, angle);
}

TEST_F(SideView3D, ShowsNothingOfThePlan) {
  const short legend = AddLegend(kSquare);
  ASSERT_EQ(0, Enter(1, {10.0, 10.0}, legend));
  ASSERT_EQ(0, Enter(2, {-30.0, 40.0}, legend));
  Tavix_SelLinHan(101);
  ASSERT_EQ(0, Tavix_EntLin(1, 2));
  ASSERT_EQ(0, Tavix_FigStt(1, 101));
  ASSERT_EQ(0, Tavix_FigMdlCir(0.0, 0.0, 40.0));
  ASSERT_EQ(0, Tavix_FigEnd());
  ASSERT_EQ(0, Tavix_VoStt());
  ASSERT_EQ(0, Tavix_VoAdd(0.0, 0.0));
  ASSERT_EQ(0, Tavix_VoAdd(20.0, 50.0));
  ASSERT_EQ(0, Tavix_SclBarDsp(1));
  ASSERT_EQ(0, Tavix_SetWak(1, 96, 100, 96, 100));
  ASSERT_EQ(0, Tavix_WakDsp(1));
  EXPECT_TRUE(SamePicture(SideView({}), Redrawn()));
}

TEST_F(SideView3D, IsNotShownInThePlan) {
  EnterSide(1, {10.0, 10.0}, 5.0, AddLegend(kSquare));
  ASSERT_EQ(0, Tavix_Dsp3D(0));
  EXPECT_TRUE(SamePicture(RawCanvas(Window()).Take(), Redrawn()));
}

TEST_F(SideView3D, ShowsNewPointsInTheNextRedraw) {
  Redrawn();
  Tavix_DrwFlg(1);
  EnterSide(1, {10.0, 10.0}, 5.0, AddLegend(kSquare));
  EXPECT_FALSE(AwaitsPaint());
  EXPECT_TRUE(SamePicture(SideView({}), TakeClientPicture(Window())));
  EXPECT_TRUE(SamePicture(SideView({{{130, 80}, 5, kSquare, L""}}), Redrawn()));
}

// The middle of the plan's data in the middle of the plan, and the base at the floor of the lowest.
TEST_F(SideView3D, IsFittedToItsPointsAndTheirLowestHeight) {
  const short legend = AddLegend(kSquare);
  EnterSide(1, {1000.0, 2000.0}, -3.25, legend);
  EnterSide(2, {1040.0, 2110.0}, 7.5, legend);
  ASSERT_EQ(0, Tavix_Drw(0));  // 220 pixels for 110 m: two pixels a metre
  EXPECT_TRUE(SamePicture(
      SideView({{{10, 130}, 1, kSquare, L""}, {{230, 50}, 23, kSquare, L""}}, L"-4.00m"), Shown()));
}

TEST_F(SideView3D, OfNoPointsKeepsItsViewAndBase) {
  const short legend = AddLegend(kSquare);
  EnterSide(1, {5.0, 6.0}, 12.5, legend);
  ASSERT_EQ(0, Tavix_Drw(0));
  EXPECT_EQ(0, Tavix_DelEntPnt3(1));
  EXPECT_EQ(0, Tavix_Drw(0));
  EXPECT_TRUE(SamePicture(SideView({}, L"12.00m"), Shown()));
  EnterSide(1, {15.0, 6.0}, 13.0, legend);
  EXPECT_TRUE(SamePicture(SideView({{{120, 80}, 1, kSquare, L""}}, L"12.00m"), Redrawn()));
}

}  // namespace
}  // namespace tavix::test
