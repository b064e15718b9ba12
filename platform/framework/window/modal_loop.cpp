#include "platform/framework/window/modal_loop.h"

#include "framework/win_app.h"

namespace afx {

BOOL PumpModalMessage() {
  if (CWinThread* thread = AfxGetThread()) {
    if (thread->PumpMessage()) return TRUE;
    AfxPostQuitMessage(static_cast<int>(thread->m_msgCur.wParam));
    return FALSE;
  }
  MSG message;
  if (::GetMessageW(&message, nullptr, 0, 0) <= 0) {
    AfxPostQuitMessage(static_cast<int>(message.wParam));
    return FALSE;
  }
  if (!AfxPreTranslateMessage(&message)) {
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
  return TRUE;
}

ScopedDisable::ScopedDisable(HWND window)
    : window_(window && ::IsWindowEnabled(window) ? window : nullptr) {
  if (window_) ::EnableWindow(window_, FALSE);
}

ScopedDisable::~ScopedDisable() {
  if (window_) ::EnableWindow(window_, TRUE);
}

}  // namespace afx
