#include "platform/framework/window/creation_hook.h"

#include <utility>

#include "platform/framework/window/window_binding.h"

namespace afx {
namespace {

thread_local CreationHook* innermost = nullptr;

// The system makes a hidden helper window for text input with a thread's first window; it is not
// the one that was asked for.
bool IsInputMethodWindow(HWND window) {
  wchar_t name[8] = {};
  ::GetClassNameW(window, name, ARRAYSIZE(name));
  return ::lstrcmpiW(name, L"ime") == 0;
}

}  // namespace

CreationHook::CreationHook(CWnd& object)
    : object_(&object),
      enclosing_(innermost),
      hook_(::SetWindowsHookExW(WH_CBT, &CreationHook::OnHook, nullptr, ::GetCurrentThreadId())) {
  innermost = this;
}

CreationHook::~CreationHook() {
  if (hook_) ::UnhookWindowsHookEx(hook_);
  innermost = enclosing_;
}

LRESULT CALLBACK CreationHook::OnHook(int code, WPARAM wParam, LPARAM lParam) {
  CWnd* bound = nullptr;
  if (code == HCBT_CREATEWND && innermost && innermost->object_) {
    const HWND window = reinterpret_cast<HWND>(wParam);
    if (!IsInputMethodWindow(window)) {
      bound = std::exchange(innermost->object_, nullptr);
      CWindowBinding::Subclass(*bound, window);
    }
  }
  const LRESULT refused = ::CallNextHookEx(nullptr, code, wParam, lParam);
  // A window that another hook refuses ends without a message.
  if (bound && refused != 0) CWindowBinding::WindowIsGone(*bound);
  return refused;
}

}  // namespace afx
