// The message loop.

#include "framework/win_app.h"

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
