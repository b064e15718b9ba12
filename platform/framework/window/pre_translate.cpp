// The way of an input message through the windows before it is dispatched.

#include "platform/framework/window/pre_translate.h"
#include "framework/win_app.h"

namespace afx {

BOOL WalkPreTranslateTree(HWND last, MSG* message) {
  for (HWND window = message->hwnd; window; window = ::GetParent(window)) {
    CWnd* object = CWnd::FromHandlePermanent(window);
    if (object && object->PreTranslateMessage(message)) return TRUE;
    if (window == last) break;
  }
  return FALSE;
}

}  // namespace afx

BOOL AfxPreTranslateMessage(MSG* message) {
  if (CWinThread* thread = AfxGetThread()) return thread->PreTranslateMessage(message);
  return afx::WalkPreTranslateTree(nullptr, message);
}

BOOL CWinThread::PreTranslateMessage(MSG* message) {
  CWnd* mainWindow = AfxGetMainWnd();
  const HWND mainHandle = mainWindow ? mainWindow->m_hWnd : nullptr;
  if (afx::WalkPreTranslateTree(mainHandle, message)) return TRUE;
  // A window beside the main one (a modeless dialog, say) lets the main one's keys work too.
  return mainHandle && message->hwnd && ::GetAncestor(message->hwnd, GA_ROOTOWNER) != mainHandle &&
         mainWindow->PreTranslateMessage(message);
}
