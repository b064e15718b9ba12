// The tabs of the host's main window: plan and 3-D side view.

#include <algorithm>

#include "tests/host/support/main_window_fixture.h"
#include "window/buttons/button_table.h"

namespace fieldhost {
namespace {

using MainWindowViews = WindowTest;

TEST_F(MainWindowViews, TabTurnsToTheSideViewAndBack) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv")}));
  ExpectInfo(L"74 points");
  const HWND plan = Plot();
  TapTab(1);
  ExpectInfo(L"74 with a height, 13.12 m to 20.66 m");
  EXPECT_TRUE(ShowsSide());
  EXPECT_NE(Plot(), plan);
  EXPECT_FALSE(::IsWindowVisible(plan));
  const HWND side = Plot();
  TapTab(0);
  EXPECT_TRUE(WaitUntil([&] { return Plot() == plan; }));
  EXPECT_FALSE(ShowsSide());
  EXPECT_FALSE(::IsWindowVisible(side));
  Exit();
}

TEST_F(MainWindowViews, KeysTurnToTheSideViewAndBack) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv")}));
  ExpectInfo(L"74 points");
  const HWND plan = Plot();
  ::PostMessageW(plan, WM_KEYDOWN, VK_F4, 0);
  EXPECT_TRUE(WaitUntil([&] { return ShowsSide(); }));
  EXPECT_NE(Plot(), plan);
  ::PostMessageW(Plot(), WM_KEYDOWN, VK_F3, 0);
  EXPECT_TRUE(WaitUntil([&] { return !ShowsSide(); }));
  EXPECT_EQ(Plot(), plan);
  Exit();
}

TEST_F(MainWindowViews, PlanIsAsItWasAfterTheSideView) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv")}));
  ExpectInfo(L"74 points");
  const auto captured = [&] {
    Tap(Plot(), 40, 300);
    EXPECT_TRUE(WaitUntil([&] { return TextOf(Info()).starts_with(L"Captured"); }));
    return TextOf(Info());
  };
  // Closer, turned and moved: nothing that a fit would bring back.
  ::SendMessageW(Plot(), WM_COMMAND, tavix::kZoomInButton, 0);
  ::SendMessageW(Plot(), WM_COMMAND, tavix::kRotateButton, 0);
  Command(ID_SURVEY_CAPTURE);
  const std::wstring before = captured();
  Command(ID_VIEW_SIDE);
  ::SendMessageW(Plot(), WM_COMMAND, tavix::kZoomInButton, 0);
  ::SendMessageW(Plot(), WM_COMMAND, tavix::kRotateButton, 0);
  Command(ID_VIEW_PLAN);
  ExpectInfo(before);
  Command(ID_SURVEY_CAPTURE);
  Command(ID_SURVEY_CAPTURE);
  ExpectInfo(L"Tap a place to capture its coordinates.");
  EXPECT_EQ(before, captured());
  Exit();
}

TEST_F(MainWindowViews, PlanCommandTurnsToThePlan) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv")}));
  ExpectInfo(L"74 points");
  Command(ID_VIEW_SIDE);
  ASSERT_TRUE(ShowsSide());
  Command(ID_SURVEY_CAPTURE);
  EXPECT_FALSE(ShowsSide());
  ExpectInfo(L"Tap a place to capture its coordinates.");
  Exit();
}

TEST_F(MainWindowViews, SurveyWithoutHeightsStaysInThePlan) {
  ASSERT_NO_FATAL_FAILURE(Open({Write(L"flat.csv", "1,10,20\n2,30,20\n")}));
  ExpectInfo(L"2 points");
  const HWND plan = Plot();
  TapTab(1);
  ExpectInfo(L"No point has a height: nothing to show in 3-D.");
  EXPECT_FALSE(ShowsSide());
  EXPECT_EQ(Plot(), plan);
  Exit();
}

TEST_F(MainWindowViews, SideViewCountsPointsWithAHeightOnly) {
  ASSERT_NO_FATAL_FAILURE(Open({Write(L"some.csv", "1,10,20,5\n2,30,20\n3,30,50,7.25\n")}));
  ExpectInfo(L"3 points");
  Command(ID_VIEW_SIDE);
  ExpectInfo(L"2 with a height, 5.00 m to 7.25 m");
  Exit();
}

TEST_F(MainWindowViews, ClosingAllReturnsToThePlan) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv")}));
  ExpectInfo(L"74 points");
  const HWND plan = Plot();
  Command(ID_VIEW_SIDE);
  ASSERT_TRUE(ShowsSide());
  Command(ID_SURVEY_CLOSE_ALL);
  ExpectInfo(L"0 points");
  EXPECT_FALSE(ShowsSide());
  EXPECT_EQ(Plot(), plan);
  Command(ID_VIEW_SIDE);
  EXPECT_FALSE(ShowsSide());
  Exit();
}

TEST_F(MainWindowViews, SideViewFollowsTheWindowsSize) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv"), L"--size", L"300x400"}));
  ExpectInfo(L"74 points");
  const int frame = WidthOf(window_) - 300;
  Command(ID_VIEW_SIDE);
  ::SetWindowPos(window_, nullptr, 0, 0, 500 + frame, 500, SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_TRUE(WaitUntil([&] { return Plot() && WidthOf(Plot()) == 500; }));
  EXPECT_TRUE(ShowsSide());
  Command(ID_VIEW_PLAN);
  EXPECT_EQ(500, WidthOf(Plot()));
  EXPECT_EQ(500, WidthOf(Tabs()));
  Exit();
}

TEST_F(MainWindowViews, ButtonsHideInBoth) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv")}));
  ExpectInfo(L"74 points");
  const auto shows_buttons = [&] {
    const HWND plot = Plot();
    HWND button = nullptr;
    while ((button = ::FindWindowExW(plot, button, L"Button", nullptr)) != nullptr) {
      if (::IsWindowVisible(button)) return true;
    }
    return false;
  };
  EXPECT_TRUE(shows_buttons());
  Command(ID_VIEW_BUTTONS);
  EXPECT_FALSE(shows_buttons());
  Command(ID_VIEW_SIDE);
  EXPECT_FALSE(shows_buttons());
  Command(ID_VIEW_BUTTONS);
  EXPECT_TRUE(shows_buttons());
  Command(ID_VIEW_PLAN);
  EXPECT_TRUE(shows_buttons());
  Exit();
}

// The place that the middle of a colour's pixels has in the plot.
POINT CentreOf(const tavix::test::Picture& picture, std::uint32_t colour) {
  RECT box = {picture.width, picture.height, 0, 0};
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      if (picture.At(x, y) != colour) continue;
      box = {std::min<LONG>(box.left, x), std::min<LONG>(box.top, y),
             std::max<LONG>(box.right, x + 1), std::max<LONG>(box.bottom, y + 1)};
    }
  }
  return {(box.left + box.right) / 2, (box.top + box.bottom) / 2};
}

// The point keeps its name, its height and its look: that of a control point.
TEST_F(MainWindowViews, SideViewShowsAMovedPointAtItsNewPlace) {
  constexpr std::uint32_t kRed = 0xC80000;
  constexpr std::uint32_t kViolet = 0x8C008C;
  const auto turn_to_the_side = [&] {
    constexpr std::uint32_t kBox = 0xFF0000;  // nothing of the plan has this colour
    Command(ID_VIEW_SIDE);
    ExpectColour(kBox, 300);
  };
  const std::string others = "2,90,0,6,manhole\n3,20,100,1,\n4,60,60,3,\n";
  const auto open_with = [&](const std::string& first_point) {
    Open({Write(L"list.csv", "no,n,e,z,kind\n1," + first_point + ",9,control\n" + others)});
  };
  ASSERT_NO_FATAL_FAILURE(open_with("0,0"));
  ExpectInfo(L"4 points");
  Command(ID_VIEW_BUTTONS);  // they are painted on their own
  EXPECT_TRUE(WaitUntil([&] {
    constexpr std::uint32_t kWhite = 0xFFFFFF;
    const tavix::test::Picture shown = Shown();
    return shown.At(shown.width - 10, 60) == kWhite;
  }));
  ExpectColour(kRed, 10);
  ExpectColour(kViolet, 5);
  const POINT manhole = CentreOf(Shown(), kViolet);
  turn_to_the_side();
  const tavix::test::Picture before = Shown();
  Command(ID_VIEW_PLAN);
  Command(ID_TOOL_MOVE_POINT);
  ::SendMessageW(window_, WM_COMMAND, ID_PLOT_NOTIFY, 1);
  TapPixel(manhole.x, manhole.y);
  ExpectInfo(L"1  90.000 m  X 0.000 \u2192 90.000  Y 0.000 \u2192 0.000  Enter stores it.");
  Command(ID_TOOL_FINISH);
  turn_to_the_side();
  const tavix::test::Picture moved = Shown();
  EXPECT_NE(before, moved);
  Exit();

  ASSERT_NO_FATAL_FAILURE(open_with("90,0"));
  ExpectInfo(L"4 points");
  Command(ID_VIEW_BUTTONS);
  turn_to_the_side();
  EXPECT_TRUE(WaitUntil([&] { return Shown() == moved; }));
  EXPECT_GE(CountColour(kRed), 10);
  Exit();
}

}  // namespace
}  // namespace fieldhost
