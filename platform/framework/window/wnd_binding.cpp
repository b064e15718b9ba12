#include "platform/framework/window/wnd_binding.h"

#include <new>
#include <utility>

#include "framework/win_app.h"
#include "platform/framework/gdi/handle_map.h"

namespace afx {
namespace {

// The maps are never destroyed: global objects still use them at the end of the process.
auto& PermanentWindows() {
  static auto& map = *new PermanentMap<CWnd, HWND>;
  return map;
}

auto& TemporaryWindows() {
  static auto& map = *new TemporaryMap<CWnd, HWND, &CWnd::m_hWnd, &IsLiveWindow>;
  return map;
}

}  // namespace

CWnd* FindPermanentWindow(HWND window) { return PermanentWindows().Find(window); }

void SetPermanentWindow(HWND window, CWnd* object) {
  if (CWnd* before = FindPermanentWindow(window); before && before != object) {
    before->m_hWnd = nullptr;
  }
  PermanentWindows().Set(window, object);
}

void RemovePermanentWindow(HWND window, const CWnd* object) {
  PermanentWindows().Remove(window, object);
}

CWnd* TemporaryWindow(HWND window) { return TemporaryWindows().Get(window); }

}  // namespace afx

namespace {

WNDPROC ProcedureOf(HWND window) {
  return reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(window, GWLP_WNDPROC));
}

WNDPROC SetProcedure(HWND window, WNDPROC procedure) {
  return reinterpret_cast<WNDPROC>(
      ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

}  // namespace

void CWindowBinding::Subclass(CWnd& object, HWND window) {
  afx::SetPermanentWindow(window, &object);
  object.m_hWnd = window;
  object.m_pfnSuper = nullptr;
  object.PreSubclassWindow();
  if (ProcedureOf(window) != &AfxWndProc) object.m_pfnSuper = SetProcedure(window, &AfxWndProc);
}

HWND CWindowBinding::Release(CWnd& object) {
  const HWND window = object.m_hWnd;
  if (!window) return nullptr;
  afx::RemovePermanentWindow(window, &object);
  // If the window was subclassed again, AfxWndProc must stay: the later procedure calls it.
  if (object.m_pfnSuper && ProcedureOf(window) == &AfxWndProc) {
    SetProcedure(window, object.m_pfnSuper);
  }
  object.m_pfnSuper = nullptr;
  object.m_hWnd = nullptr;
  return window;
}

void CWindowBinding::WindowIsGone(CWnd& object) {
  Release(object);
  if (CWinThread* thread = AfxGetThread()) {
    if (thread->m_pActiveWnd == &object) thread->m_pActiveWnd = nullptr;
    if (thread->m_pMainWnd == &object) {
      thread->m_pMainWnd = nullptr;
      AfxPostQuitMessage(0);
    }
  }
  object.PostNcDestroy();
}

namespace afx {
namespace {

thread_local CreationHook* innermost = nullptr;

// With a thread's first window the system creates a hidden window for the input method; that is not
// the window to bind.
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
      try {
        CWindowBinding::Subclass(*bound, window);
      } catch (const std::bad_alloc&) {
        constexpr LRESULT kRefused = 1;
        CWindowBinding::WindowIsGone(*bound);
        return kRefused;
      }
    }
  }
  const LRESULT refused = ::CallNextHookEx(nullptr, code, wParam, lParam);
  // A window that another hook refuses gets no messages, not even WM_NCDESTROY.
  if (bound && refused != 0) CWindowBinding::WindowIsGone(*bound);
  return refused;
}

}  // namespace afx
