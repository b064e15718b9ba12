// From the system into CWnd::WindowProc.

#include "framework/exception.h"
#include "framework/wnd.h"
#include "platform/framework/window/current_message.h"
#include "platform/framework/window/exception_report.h"
#include "platform/framework/window/window_binding.h"

namespace afx {

MSG& CurrentMessage() {
  static thread_local MSG message = {};
  return message;
}

namespace {

// No C++ exception may pass through the system's code that called us. What is left undone is chosen
// so that the system does not ask again at once.
LRESULT AnswerAfterException(HWND window, UINT message) {
  if (message == WM_CREATE) return -1;
  if (message == WM_PAINT) ::ValidateRect(window, nullptr);
  return 0;
}

}  // namespace
}  // namespace afx

LRESULT CALLBACK AfxWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  CWnd* object = CWnd::FromHandlePermanent(window);
  if (!object) return ::DefWindowProcW(window, message, wParam, lParam);

  LRESULT result = 0;
  {
    const afx::ScopedCurrentMessage current({window, message, wParam, lParam, 0, {}});
    try {
      result = CWindowBinding::CallWindowProcedure(*object, message, wParam, lParam);
    } catch (CException* exception) {
      afx::ReportAndDelete(exception);
      result = afx::AnswerAfterException(window, message);
    }
  }
  if (message == WM_NCDESTROY) {
    // Looked up again: the handler may have deleted the object.
    if (CWnd* left = CWnd::FromHandlePermanent(window)) CWindowBinding::WindowIsGone(*left);
  }
  return result;
}
