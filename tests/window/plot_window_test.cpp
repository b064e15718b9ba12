// The plot window as Windows knows it: its place, style, class and buttons.
#include <tavix/tavix.h>

#include <array>
#include <string>
#include <vector>

#include "tests/support/low_byte.h"
#include "tests/support/plot_input.h"
#include "tests/support/plot_test.h"

namespace tavix::test {
namespace {

// The place of a window in its parent's client area.
RECT PlaceInParent(HWND window) {
  RECT place;
  ::GetWindowRect(window, &place);
  ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<POINT*>(&place), 2);
  return place;
}

class PlotWindow : public PlotTest {
 protected:
  void SetUp() override {
    ASSERT_EQ(0, Tavix_Crt());
    ASSERT_EQ(0, Tavix_LnkRct(host_.AsParent(), 15, 25, 215, 325, kNotifyId));
  }
};

TEST_F(PlotWindow, IsAHiddenBorderedChildOfTheHost) {
  ASSERT_TRUE(::IsWindow(Window()));
  EXPECT_EQ(host_.Window(), ::GetParent(Window()));
  EXPECT_EQ(WS_CHILD | WS_BORDER | WS_TABSTOP, ::GetWindowLongPtrW(Window(), GWL_STYLE));
  EXPECT_EQ(WS_EX_CLIENTEDGE, ::GetWindowLongPtrW(Window(), GWL_EXSTYLE));
  EXPECT_EQ(0, ::GetDlgCtrlID(Window()));
}

TEST_F(PlotWindow, HasItsNameAndAClassWithoutCursorBackgroundAndIcon) {
  std::array<wchar_t, 64> name{};
  ::GetWindowTextW(Window(), name.data(), static_cast<int>(name.size()));
  EXPECT_EQ(std::wstring(L"確認図"), name.data());
  EXPECT_EQ(static_cast<ULONG_PTR>(CS_DBLCLKS), ::GetClassLongPtrW(Window(), GCL_STYLE));
  EXPECT_EQ(0U, ::GetClassLongPtrW(Window(), GCLP_HCURSOR));
  EXPECT_EQ(0U, ::GetClassLongPtrW(Window(), GCLP_HBRBACKGROUND));
  EXPECT_EQ(0U, ::GetClassLongPtrW(Window(), GCLP_HICON));
}

TEST_F(PlotWindow, TakesThePlaceItWasGiven) {
  const RECT wanted{15, 25, 215, 325};
  const RECT place = PlaceInParent(Window());
  EXPECT_TRUE(::EqualRect(&wanted, &place))
      << place.left << ' ' << place.top << ' ' << place.right << ' ' << place.bottom;
}

TEST_F(PlotWindow, IsTheFrameworksObject) {
  CWnd* window = Tavix_Wnd();
  ASSERT_NE(nullptr, window);
  EXPECT_EQ(window, CWnd::FromHandlePermanent(window->m_hWnd));
}

TEST_F(PlotWindow, ShowsAndHidesByTheLowByte) {
  const struct {
    int flag;
    bool visible;
  } rows[] = {{1, true}, {0, false}, {0xFF, true}, {0x100, false}, {0x101, true}, {-256, false}};
  for (const auto& [flag, visible] : rows) {
    EXPECT_EQ(0, CallWithWholeFlag(&Tavix_Dsp, flag)) << flag;
    EXPECT_EQ(visible, ::IsWindowVisible(Window()) != FALSE) << flag;
  }
}

TEST_F(PlotWindow, GoesWithItsInstance) {
  const HWND window = Window();
  std::vector<HWND> buttons;
  for (const ButtonRow& button : kButtonTable) {
    buttons.push_back(ButtonWindow(button.id));
    EXPECT_TRUE(::IsWindow(buttons.back())) << button.id;
  }
  EXPECT_EQ(0, Tavix_Del());
  EXPECT_FALSE(::IsWindow(window));
  for (const HWND button : buttons) EXPECT_FALSE(::IsWindow(button));
  EXPECT_EQ(nullptr, Tavix_Wnd());
  EXPECT_TRUE(::IsWindow(host_.Window()));
}

TEST_F(PlotWindow, GivesARatioOnlyAfterOneWasSet) {
  int tate = 0;
  int yoko = 0;
  EXPECT_EQ(-1, Tavix_GetTatYok(&tate, &yoko));
  EXPECT_EQ(1, tate);  // written all the same
  EXPECT_EQ(1, yoko);
  const struct {
    int tate;
    int yoko;
  } rows[] = {{2, 1}, {1, 3}, {0, 5}, {5, 0}, {0, 0}, {-2, 7}};
  for (const auto& row : rows) {
    EXPECT_EQ(0, Tavix_SetTatYok(row.tate, row.yoko));
    EXPECT_EQ(0, Tavix_GetTatYok(&tate, &yoko));
    EXPECT_EQ(row.tate, tate);
    EXPECT_EQ(row.yoko, yoko);
    EXPECT_EQ(0, Tavix_Drw(1));  // even a ratio of 0:0 does not stop it
    EXPECT_EQ(0, Tavix_Drw(0));
  }
}

TEST_F(PlotWindow, FiveStandSideBySide) {
  std::array<HWND, kInstances> windows{Window()};
  for (int index = 1; index < kInstances; ++index) {
    Tavix_SetIdx(index);
    ASSERT_EQ(0, Tavix_Crt());
    ASSERT_EQ(0, LinkPlot(100, 180, {10 + 150 * index, 400}));
    windows[static_cast<std::size_t>(index)] = Window();
  }
  for (int index = 0; index < kInstances; ++index) {
    Tavix_SetIdx(index);
    EXPECT_EQ(windows[static_cast<std::size_t>(index)], Window()) << index;
    EXPECT_TRUE(::IsWindow(Window())) << index;
    for (int other = 0; other < index; ++other) {
      EXPECT_NE(windows[static_cast<std::size_t>(other)], Window()) << index;
    }
  }
  Tavix_SetIdx(2);
  EXPECT_EQ(0, Tavix_Del());
  for (std::size_t index = 0; index < windows.size(); ++index) {
    EXPECT_EQ(index != 2, ::IsWindow(windows[index]) != FALSE) << index;
  }
}

}  // namespace
}  // namespace tavix::test
