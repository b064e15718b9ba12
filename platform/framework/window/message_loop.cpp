#include "platform/framework/window/message_loop.h"

#include "framework/win_app.h"

namespace {

// Calls PreTranslateMessage of the message's window and then of each parent or owner that has an
// object, up to and including `last` (null: to the top). TRUE when one of them handled it.
BOOL WalkPreTranslateTree(HWND last, MSG* message) {
  for (HWND window = message->hwnd; window; window = ::GetParent(window)) {
    CWnd* object = CWnd::FromHandlePermanent(window);
    if (object && object->PreTranslateMessage(message)) return TRUE;
    if (window == last) break;
  }
  return FALSE;
}

}  // namespace

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

void ReportAndDelete(CException* exception) {
  wchar_t sentence[512] = {};
  if (exception->GetErrorMessage(sentence, ARRAYSIZE(sentence))) {
    AfxMessageBox(sentence, MB_ICONSTOP);
  }
  exception->Delete();
}

}  // namespace afx

BOOL AfxPreTranslateMessage(MSG* message) {
  if (CWinThread* thread = AfxGetThread()) return thread->PreTranslateMessage(message);
  return WalkPreTranslateTree(nullptr, message);
}

BOOL CWinThread::PreTranslateMessage(MSG* message) {
  CWnd* mainWindow = AfxGetMainWnd();
  const HWND mainHandle = mainWindow ? mainWindow->m_hWnd : nullptr;
  if (WalkPreTranslateTree(mainHandle, message)) return TRUE;
  // Accelerators of the main window also work in other top-level windows, such as modeless dialogs.
  return mainHandle && message->hwnd && ::GetAncestor(message->hwnd, GA_ROOTOWNER) != mainHandle &&
         mainWindow->PreTranslateMessage(message);
}

CWinThread::~CWinThread() = default;

CWnd* CWinThread::GetMainWnd() { return m_pActiveWnd ? m_pActiveWnd : m_pMainWnd; }

int CWinThread::Run() {
  bool idle = true;
  LONG idleCount = 0;
  for (;;) {
    MSG waiting;
    while (idle && !::PeekMessageW(&waiting, nullptr, 0, 0, PM_NOREMOVE)) {
      if (!OnIdle(idleCount++)) idle = false;
    }
    do {
      if (!PumpMessage()) return ExitInstance();
      if (IsIdleMessage(&m_msgCur)) {
        idle = true;
        idleCount = 0;
      }
    } while (::PeekMessageW(&waiting, nullptr, 0, 0, PM_NOREMOVE));
  }
}

int CWinThread::ExitInstance() {
  return m_msgCur.message == WM_QUIT ? static_cast<int>(m_msgCur.wParam) : 0;
}

BOOL CWinThread::PumpMessage() {
  // -1 (a broken queue) ends the loop like WM_QUIT.
  if (::GetMessageW(&m_msgCur, nullptr, 0, 0) <= 0) return FALSE;
  if (!PreTranslateMessage(&m_msgCur)) {
    ::TranslateMessage(&m_msgCur);
    ::DispatchMessageW(&m_msgCur);
  }
  return TRUE;
}

BOOL CWinThread::OnIdle(LONG) { return FALSE; }

BOOL CWinThread::IsIdleMessage(MSG* message) {
  constexpr UINT kCaretTimer = 0x0118;  // undocumented, comes several times a second
  const bool pointerMove = message->message == WM_MOUSEMOVE || message->message == WM_NCMOUSEMOVE;
  return !pointerMove && message->message != WM_PAINT && message->message != kCaretTimer;
}
