// What the tests of the host's main window share: the host, started with files, and the actions of
// a user on it.
#pragma once

#include <windows.h>
// The next header needs the types of the one above.
#include <commctrl.h>

#include <functional>
#include <optional>

#include "host/resource.h"
#include "tests/host/host_process.h"
#include "tests/host/host_test.h"

namespace fieldhost {

inline constexpr const wchar_t* kTitle = L"Field survey";
// Waits for a state of another process, which only asking again can tell.
inline bool WaitUntil(const std::function<bool()>& condition) {
  constexpr ULONGLONG kPatience = 60000;  // milliseconds
  const ULONGLONG end = ::GetTickCount64() + kPatience;
  while (!condition()) {
    if (::GetTickCount64() > end) return false;
    ::Sleep(20);
  }
  return true;
}

inline std::wstring TextOf(HWND window) {
  wchar_t text[1000] = {};
  ::SendMessageW(window, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
  return text;
}

class MainWindow : public HostTest {
 protected:
  void Open(const std::vector<std::wstring>& arguments) {
    host_.emplace(folder_, arguments);
    window_ = host_->WaitForWindow(kTitle);
    ASSERT_TRUE(window_);
  }

  void Command(int id) const { ::SendMessageW(window_, WM_COMMAND, static_cast<WPARAM>(id), 0); }

  [[nodiscard]] HWND Tabs() const { return ::GetDlgItem(window_, ID_VIEW_TABS); }

  [[nodiscard]] LRESULT TabOf() const { return ::SendMessageW(Tabs(), TCM_GETCURSEL, 0, 0); }

  [[nodiscard]] HWND Info() const { return ::GetDlgItem(window_, ID_INFO_LINE); }

  void ExpectInfo(const std::wstring& text) const {
    EXPECT_TRUE(WaitUntil([&] { return TextOf(Info()) == text; }))
        << "the line shows: " << std::filesystem::path(TextOf(Info())).string();
  }

  // The plot window that is shown: of the plan, or of the side view.
  [[nodiscard]] HWND Plot() const {
    HWND plot = nullptr;
    do {
      plot = ::FindWindowExW(window_, plot, nullptr, L"確認図");
    } while (plot && !::IsWindowVisible(plot));
    return plot;
  }

  [[nodiscard]] bool ShowsSide() const { return TabOf() == 1; }

  // Taps the tab of this place: 0 the plan, 1 the side view.
  void TapTab(int tab) const {
    constexpr int kTabWidth = 60;
    Tap(Tabs(), tab * kTabWidth + kTabWidth / 2, 10);
  }

  static void Tap(HWND window, int x, int y) {
    ::PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    ::PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
  }

  [[nodiscard]] static int WidthOf(HWND window) {
    RECT rect = {};
    ::GetWindowRect(window, &rect);
    return rect.right - rect.left;
  }

  void Exit() {
    ::PostMessageW(window_, WM_COMMAND, ID_SURVEY_EXIT, 0);
    EXPECT_EQ(host_->Wait(), 0);
  }

  std::optional<HostProcess> host_;
  HWND window_ = nullptr;
};

}  // namespace fieldhost
