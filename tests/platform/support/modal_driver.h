// Drives a dialog from inside the modal loop it runs.
#pragma once

#include <windows.h>

#include <functional>
#include <utility>
#include <vector>

#include "tests/support/foreground.h"

namespace test {

// Waits for a visible, enabled dialog of this thread and then does the steps, each in its own turn
// of the message loop. Only one driver at a time.
class ModalDriver {
 public:
  using Step = std::function<void(HWND dialog)>;

  explicit ModalDriver(std::vector<Step> steps) : steps_(std::move(steps)) {
    current_ = this;
    timer_ = ::SetTimer(nullptr, 0, 15, &ModalDriver::OnTimer);
  }
  ~ModalDriver() {
    ::KillTimer(nullptr, timer_);
    current_ = nullptr;
  }
  ModalDriver(const ModalDriver&) = delete;
  ModalDriver& operator=(const ModalDriver&) = delete;

  bool Done() const { return done_ == steps_.size(); }

  // The thread's visible, enabled dialog, or null.
  static HWND OpenDialog() {
    HWND found = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), &TakeIfOpen, reinterpret_cast<LPARAM>(&found));
    return found;
  }

 private:
  static BOOL CALLBACK TakeIfOpen(HWND window, LPARAM result) {
    wchar_t name[16] = {};
    ::GetClassNameW(window, name, 16);
    const bool open =
        ::lstrcmpW(name, L"#32770") == 0 && ::IsWindowVisible(window) && ::IsWindowEnabled(window);
    if (open) *reinterpret_cast<HWND*>(result) = window;
    return !open;
  }

  static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (!current_ || current_->Done()) return;
    const HWND dialog = OpenDialog();
    if (!dialog) return;
    tavix::test::BringToFrontWhenNoneIs(dialog);
    current_->steps_[current_->done_++](dialog);
  }

  static inline ModalDriver* current_ = nullptr;
  std::vector<Step> steps_;
  std::size_t done_ = 0;
  UINT_PTR timer_ = 0;
};

inline ModalDriver::Step Command(WPARAM id) {
  return [id](HWND dialog) { ::PostMessageW(dialog, WM_COMMAND, id, 0); };
}

// A key as the keyboard sends it, to the window that has the focus.
inline ModalDriver::Step Key(WPARAM key) {
  return [key](HWND) {
    ::PostMessageW(::GetFocus(), WM_KEYDOWN, key, 1);
    ::PostMessageW(::GetFocus(), WM_KEYUP, key, 0xC0000001);
  };
}

}  // namespace test
