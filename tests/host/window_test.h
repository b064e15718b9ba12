// What the tests of the host's main window share: the running host, and hands to work it with.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "host/resource.h"
#include "tests/host/host_process.h"
#include "tests/host/host_test.h"

namespace fieldhost {

// Waits for a state of another process, which only asking again can tell.
[[nodiscard]] bool WaitUntil(const std::function<bool()>& condition);

// Of a window of any process, controls included.
[[nodiscard]] std::wstring TextOf(HWND window);

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

  // The plot window: the child that is not the information line.
  [[nodiscard]] HWND Plot() const;

  // Gives the window another client width, and waits for the plot to follow.
  void Widen(int width) const;

  // A press and a release at a client pixel of the plot.
  void TapPixel(int x, int y) const;

  void Exit();

  std::optional<HostProcess> host_;
  HWND window_ = nullptr;
};

}  // namespace fieldhost
