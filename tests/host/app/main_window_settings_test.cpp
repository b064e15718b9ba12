// The plot window's own settings, opened by its button inside the host.

#include "tests/host/support/main_window_fixture.h"
#include "tests/support/foreground.h"
#include "window/buttons/button_table.h"

namespace fieldhost {
namespace {

class MainWindowSettings : public WindowTest {
 protected:
  [[nodiscard]] HWND OpenSettings() {
    ::PostMessageW(Plot(), WM_COMMAND, tavix::kSettingsButton, 0);
    return host_->WaitForWindow(L"確認図設定");
  }

  void ExpectInOrder() const {
    EXPECT_TRUE(WaitUntil([&] { return ::IsWindowEnabled(window_) && ::IsWindowEnabled(Plot()); }));
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    EXPECT_TRUE(WaitUntil([&] {
      tavix::test::BringToFrontWhenNoneIs(window_);
      ::GetGUIThreadInfo(::GetWindowThreadProcessId(window_, nullptr), &info);
      return info.hwndFocus == Plot();
    }));
    // Taps are still reported.
    ::PostMessageW(window_, WM_COMMAND, ID_PLOT_NOTIFY, 1);
    ExpectInfo(L"1 T-1  X -35171.046  Y 12306.579");
  }
};

TEST_F(MainWindowSettings, CloseByEveryWayAndLeaveTheHostInOrder) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv")}));
  ExpectInfo(L"74 points");
  for (const WPARAM key : {VK_RETURN, VK_ESCAPE}) {
    const HWND dialog = OpenSettings();
    ASSERT_TRUE(dialog);
    EXPECT_FALSE(::IsWindowEnabled(window_));
    ::PostMessageW(::GetWindow(dialog, GW_CHILD), WM_KEYDOWN, key, 0);
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(dialog); })) << key;
    ExpectInOrder();
  }
  const HWND dialog = OpenSettings();
  ASSERT_TRUE(dialog);
  ::PostMessageW(dialog, WM_CLOSE, 0, 0);
  EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(dialog); }));
  ExpectInOrder();
  Exit();
}

// The items of the settings.
constexpr int kEntry = 1000;
constexpr int kMarkSize = 1010;

LRESULT Ask(HWND dialog, int item, UINT message, WPARAM value = 0) {
  return ::SendMessageW(::GetDlgItem(dialog, item), message, value, 0);
}

TEST_F(MainWindowSettings, ListTheKindsOfPointsAndKeepWhatTheUserChanged) {
  const auto open = [&] {
    ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv")}));
    ExpectInfo(L"74 points");
  };
  ASSERT_NO_FATAL_FAILURE(open());
  HWND dialog = OpenSettings();
  ASSERT_TRUE(dialog);
  EXPECT_EQ(8, Ask(dialog, kEntry, CB_GETCOUNT));
  EXPECT_EQ(3, Ask(dialog, kMarkSize, CB_GETCURSEL));
  Ask(dialog, kMarkSize, CB_SETCURSEL, 8);
  ::PostMessageW(dialog, WM_COMMAND, IDOK, 0);
  EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(dialog); }));

  // The side view shows it too.
  Command(ID_VIEW_SIDE);
  dialog = OpenSettings();
  ASSERT_TRUE(dialog);
  EXPECT_EQ(8, Ask(dialog, kMarkSize, CB_GETCURSEL));
  Ask(dialog, kMarkSize, CB_SETCURSEL, 5);
  ::PostMessageW(dialog, WM_COMMAND, IDOK, 0);
  EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(dialog); }));
  Exit();

  // And so it is the next time, in the plan.
  ASSERT_NO_FATAL_FAILURE(open());
  dialog = OpenSettings();
  ASSERT_TRUE(dialog);
  EXPECT_EQ(5, Ask(dialog, kMarkSize, CB_GETCURSEL));
  ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
  EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(dialog); }));
  Exit();
}

TEST_F(MainWindowSettings, OpenOverTheSideViewToo) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv")}));
  ExpectInfo(L"74 points");
  Command(ID_VIEW_SIDE);
  ASSERT_TRUE(ShowsSide());
  const HWND dialog = OpenSettings();
  ASSERT_TRUE(dialog);
  ::PostMessageW(dialog, WM_COMMAND, IDOK, 0);
  EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(dialog); }));
  EXPECT_TRUE(ShowsSide());
  ExpectInOrder();
  Exit();
}

}  // namespace
}  // namespace fieldhost
