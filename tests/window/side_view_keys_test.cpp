// The arrow keys and the view buttons in the 3-D side view.
#include "tests/support/plot_input.h"
#include "tests/support/side_plot_test.h"

namespace tavix::test {
namespace {

constexpr int kColumn = 20;  // pixels the buttons take
constexpr PointLegend kSquare{6, 9, 0, 0, 1, RGB(0, 0, 255)};

class SideViewKeys : public SidePlotTest {
 protected:
  void SetUp() override {
    SidePlotTest::SetUp();
    Tavix_SetBtn(1);
    ASSERT_EQ(0, Tavix_Drw(1));
  }

  static void Key(int key) { PressKey(key, Window()); }

  // The drawing area.
  static Picture Area() { return LeftPart(Shown(), kWidth - kColumn); }
  static Picture Expected(const std::vector<SidePoint>& points, const std::wstring& base) {
    return LeftPart(SideView(points, base), kWidth - kColumn);
  }
};

TEST_F(SideViewKeys, LeftAndRightTurn) {
  Key(VK_LEFT);
  EXPECT_EQ(10, Angle());
  Key(VK_RIGHT);
  Key(VK_RIGHT);
  EXPECT_EQ(350, Angle());
}

TEST_F(SideViewKeys, UpAndDownShiftTheHeightBase) {
  EnterSide(1, {0.0, 0.0}, 20.0, AddLegend(kSquare));
  Key(VK_UP);  // 30 pixels are 30 m: steps of 50
  EXPECT_TRUE(SamePicture(Expected({{{110, 90}, -30, kSquare, L"", true}}, L"50.00m"), Area()));
  Key(VK_DOWN);
  EXPECT_TRUE(SamePicture(Expected({{{110, 90}, 20, kSquare, L""}}, L"0.00m"), Area()));
  Key(VK_DOWN);
  EXPECT_TRUE(SamePicture(Expected({{{110, 90}, 70, kSquare, L""}}, L"-50.00m"), Area()));
}

TEST_F(SideViewKeys, StepTheHeightBaseByTheScale) {
  const struct {
    double metres_of_30_pixels;
    const wchar_t* base;
  } rows[] = {{600.0, L"500.00m"}, {400.0, L"300.00m"}, {200.0, L"200.00m"}, {100.0, L"100.00m"},
              {30.0, L"50.00m"},   {20.0, L"20.00m"},   {10.0, L"10.00m"},   {5.0, L"5.00m"},
              {2.0, L"2.00m"},     {0.75, L"1.00m"},    {0.375, L"0.50m"},   {0.2, L"0.20m"},
              {0.0625, L"0.10m"}};
  for (const auto& [metres, base] : rows) {
    ASSERT_EQ(0, Tavix_Zom1(0.0, 0.0, metres * kHeight / 30.0 / 2.0));
    Key(VK_UP);
    EXPECT_TRUE(SamePicture(Expected({}, base), Area())) << metres;
    Key(VK_DOWN);
    EXPECT_TRUE(SamePicture(Expected({}, L"0.00m"), Area())) << metres;
  }
}

TEST_F(SideViewKeys, DoNothingWithoutTheButtons) {
  Tavix_SetBtn(0);
  ASSERT_EQ(0, Tavix_Drw(1));
  for (const int key : {VK_LEFT, VK_UP, VK_RIGHT, VK_DOWN}) Key(key);
  EXPECT_EQ(0, Angle());
  EXPECT_TRUE(SamePicture(SideView({}), Shown()));
}

TEST_F(SideViewKeys, HaveTheWholeViewFittedAnew) {
  EnterSide(1, {0.0, 0.0}, 20.5, AddLegend(kSquare));
  Press(kWholeViewButton);
  const Picture home = Area();
  Key(VK_UP);
  ASSERT_FALSE(home == Area());
  Press(kWholeViewButton);
  EXPECT_TRUE(SamePicture(home, Area())) << "the base is back at the floor of the lowest point";
}

TEST_F(SideViewKeys, WholeTogglesOnceItsPointsAreFitted) {
  EnterSide(1, {0.0, 0.0}, 20.5, AddLegend(kSquare));
  EnterSide(2, {50.0, 60.0}, 30.0, AddLegend(kSquare));
  Press(kWholeViewButton);
  const Picture home = Area();
  Press(kZoomInButton);
  const Picture zoomed = Area();
  ASSERT_FALSE(home == zoomed);
  Press(kWholeViewButton);
  EXPECT_TRUE(SamePicture(home, Area()));
  Press(kWholeViewButton);
  EXPECT_TRUE(SamePicture(zoomed, Area()));
}

TEST_F(SideViewKeys, WholeFitsAnewAfterTheseChangesOnly) {
  const short legend = AddLegend(kSquare);
  const short no_mark = AddLegend({4, 0, 0, 0, 1, 0});
  const struct {
    const char* what;
    void (*change)(short legend);
    bool fits;
  } rows[] = {
      {"nothing", [](short) {}, false},
      {"entered again as it was",
       [](short same) {
         EnterSide(1, {0.0, 0.0}, 20.5, same);
       },
       true},
      {"a legend", [](short same) { Tavix_ChgPnt3Hid(1, same); }, true},
      {"number and name", [](short) { Tavix_ChgPnt3NoNam(1, 3, L""); }, false},
      {"a point removed", [](short) { Tavix_DelEntPnt3(3); }, true},
      {"an unknown point removed", [](short) { Tavix_DelEntPnt3(99); }, true},
      {"a turn there and back",
       [](short) {
         Key(VK_LEFT);
         Key(VK_RIGHT);
       },
       true},
      {"a point of the plan",
       [](short same) {
         Enter(1, {7.0, 7.0}, same);
       },
       false},
      {"a line", [](short) { Tavix_EntLin(1, 2); }, false},
  };
  for (const auto& [what, change, fits] : rows) {
    Tavix_DrwClr();
    EnterSide(1, {0.0, 0.0}, 20.5, legend);
    EnterSide(2, {50.0, 60.0}, 30.0, legend);
    EnterSide(3, {25.0, 30.0}, 25.0, no_mark);  // not to be seen
    Press(kWholeViewButton);
    const Picture home = Area();
    Press(kZoomInButton);
    Press(kWholeViewButton);  // home, and the zoomed view is the one before
    ASSERT_TRUE(SamePicture(home, Area())) << what;
    change(legend);
    Press(kWholeViewButton);
    EXPECT_EQ(fits, home == Area()) << what;
  }
}

TEST_F(SideViewKeys, WholeLeavesThePlansChangesToThePlan) {
  const short legend = AddLegend(kSquare);
  ASSERT_EQ(0, Enter(1, {10.0, 20.0}, legend));
  Press(kWholeViewButton);  // of the side view, which has nothing
  ASSERT_EQ(0, Tavix_Dsp3D(0));
  Press(kWholeViewButton);
  const RawCanvas canvas(Window());
  DrawRawPoint(canvas.Dc(), kSquare, {110, 90});  // fitted: in the middle
  EXPECT_TRUE(SamePicture(LeftPart(canvas.Take(), kWidth - kColumn), Area()));
}

TEST_F(SideViewKeys, TheRotateButtonTurnsThePoints) {
  EnterSide(1, {30.0, 0.0}, 0.0, AddLegend(kSquare));
  for (int press = 0; press < 9; ++press) Press(kRotateButton);
  ASSERT_EQ(90, Angle());
  EXPECT_TRUE(SamePicture(Expected({{{140, 90}, 0, kSquare, L""}}, L"0.00m"), Area()));
}

}  // namespace
}  // namespace tavix::test
