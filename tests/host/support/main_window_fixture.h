// What the tests of the host's main window share: the running host, and hands to work it with.
#pragma once

#include <windows.h>
// The next header needs the types of the one above.
#include <commctrl.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "host/resources/fieldhost_ids.h"
#include "tests/host/support/host_process.h"
#include "tests/host/support/host_test.h"
#include "tests/support/window_picture.h"

namespace fieldhost {

// Polls for a state of another process.
[[nodiscard]] bool WaitUntil(const std::function<bool()>& condition);

// Of a window of any process, controls included.
[[nodiscard]] std::wstring TextOf(HWND window);
[[nodiscard]] int WidthOf(HWND window);

// What a window of any process shows in its client area at this moment, children included.
[[nodiscard]] tavix::test::Picture ShownBy(HWND window);

// A press and a release at a client pixel.
void Tap(HWND window, int x, int y);

inline constexpr const wchar_t* kTitle = L"Field survey";

class WindowTest : public HostTest {
 protected:
  void Open(const std::vector<std::wstring>& arguments);

  // Does a command at once.
  void Command(int id) const { ::SendMessageW(window_, WM_COMMAND, static_cast<WPARAM>(id), 0); }
  // Does it through the message loop: for commands that open a dialog.
  void PostCommand(int id) const {
    ::PostMessageW(window_, WM_COMMAND, static_cast<WPARAM>(id), 0);
  }

  [[nodiscard]] HWND Info() const { return ::GetDlgItem(window_, ID_INFO_LINE); }
  void ExpectInfo(const std::wstring& text) const;
  void ExpectInfoBegins(const std::wstring& text) const;

  // The plot window that is shown: of the plan, or of the side view.
  [[nodiscard]] HWND Plot() const;

  [[nodiscard]] HWND Tabs() const { return ::GetDlgItem(window_, ID_VIEW_TABS); }
  [[nodiscard]] bool ShowsSide() const { return TabOf() == 1; }
  // The tab's place: 0 the plan, 1 the side view.
  [[nodiscard]] LRESULT TabOf() const { return ::SendMessageW(Tabs(), TCM_GETCURSEL, 0, 0); }
  void TapTab(int tab) const;

  // What the plot shows at this moment.
  [[nodiscard]] tavix::test::Picture Shown() const { return ShownBy(Plot()); }
  [[nodiscard]] int CountColour(std::uint32_t colour) const;  // its pixels; 0x00RRGGBB
  // Waits until it shows at least so many pixels of a colour.
  void ExpectColour(std::uint32_t colour, int pixels) const;

  // Gives the window another client width, and waits for the plot to follow.
  void Widen(int width) const;

  void TapPixel(int x, int y) const { Tap(Plot(), x, y); }

  void Exit();

  std::optional<HostProcess> host_;
  HWND window_ = nullptr;
};

}  // namespace fieldhost
