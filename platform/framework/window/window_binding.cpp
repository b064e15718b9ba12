#include "platform/framework/window/window_binding.h"

#include "framework/win_app.h"
#include "platform/framework/window/window_map.h"

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
  object.m_hWnd = window;
  object.m_pfnSuper = nullptr;
  afx::SetPermanentWindow(window, &object);
  object.PreSubclassWindow();
  if (ProcedureOf(window) != &AfxWndProc) object.m_pfnSuper = SetProcedure(window, &AfxWndProc);
}

HWND CWindowBinding::Release(CWnd& object) {
  const HWND window = object.m_hWnd;
  if (!window) return nullptr;
  afx::RemovePermanentWindow(window, &object);
  // Somebody who subclassed after us holds our procedure, which then stays.
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
