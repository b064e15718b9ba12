// A system that runs out of windows: it refuses to make more of one class.
#pragma once

#include <windows.h>

#include <string>
#include <utility>

namespace tavix::test {

// While it lives, this thread gets `allowed` more windows of the class and then none. One at a
// time.
class WindowRefusal {
 public:
  WindowRefusal(std::wstring class_name, int allowed)
      : class_name_(std::move(class_name)),
        allowed_(allowed),
        hook_(::SetWindowsHookExW(WH_CBT, &OnHook, nullptr, ::GetCurrentThreadId())) {
    active_ = this;
  }
  ~WindowRefusal() {
    ::UnhookWindowsHookEx(hook_);
    active_ = nullptr;
  }
  WindowRefusal(const WindowRefusal&) = delete;
  WindowRefusal& operator=(const WindowRefusal&) = delete;

 private:
  static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam) {
    constexpr LRESULT kRefused = 1;
    if (code == HCBT_CREATEWND && active_->Refuses(reinterpret_cast<HWND>(wParam))) return kRefused;
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
  }

  bool Refuses(HWND window) {
    wchar_t name[64] = {};
    ::GetClassNameW(window, name, ARRAYSIZE(name));
    return ::lstrcmpiW(name, class_name_.c_str()) == 0 && allowed_-- <= 0;
  }

  static inline WindowRefusal* active_ = nullptr;
  std::wstring class_name_;
  int allowed_;
  HHOOK hook_;
};

}  // namespace tavix::test
