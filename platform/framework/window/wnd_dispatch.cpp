// The way of a message: from AfxWndProc to CWnd::WindowProc, and from there to the handlers.

#include <new>

#include "framework/command_handlers.h"
#include "framework/exception.h"
#include "framework/window_handlers.h"
#include "framework/wnd.h"
#include "platform/framework/window/message_loop.h"
#include "platform/framework/window/wnd_binding.h"

namespace afx {
namespace {

// The message that this thread is handling.
MSG& CurrentMessage() {
  static thread_local MSG message = {};
  return message;
}

// Makes a message the current one for as long as it lives.
class ScopedCurrentMessage {
 public:
  explicit ScopedCurrentMessage(const MSG& message) : previous_(CurrentMessage()) {
    CurrentMessage() = message;
  }
  ~ScopedCurrentMessage() { CurrentMessage() = previous_; }
  ScopedCurrentMessage(const ScopedCurrentMessage&) = delete;
  ScopedCurrentMessage& operator=(const ScopedCurrentMessage&) = delete;

 private:
  const MSG previous_;
};

// Exceptions must not leave a window procedure. What is done in place of the rest of the handler
// keeps the system from sending the message again at once.
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
    } catch (const std::bad_alloc&) {
      result = afx::AnswerAfterException(window, message);
    }
  }
  if (message == WM_NCDESTROY) {
    // Looked up again, because the handler may have deleted the object.
    if (CWnd* left = CWnd::FromHandlePermanent(window)) CWindowBinding::WindowIsGone(*left);
  }
  return result;
}

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
ON_WM_DRAWITEM()
ON_WM_MEASUREITEM()
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

namespace {

// The message number under which the map lists the message.
UINT MessageInMap(UINT message) {
  return WM_CTLCOLORMSGBOX <= message && message <= WM_CTLCOLORSTATIC ? WM_CTLCOLOR : message;
}

}  // namespace

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT result = 0;
  if (OnWndMsg(message, wParam, lParam, &result)) return result;
  return DefWindowProcW(message, wParam, lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
  if (message == WM_COMMAND) {
    if (!OnCommand(wParam, lParam)) return FALSE;
    *result = 1;
    return TRUE;
  }
  if (message == WM_NOTIFY) {
    return reinterpret_cast<NMHDR*>(lParam) && OnNotify(wParam, lParam, result);
  }
  const AFX_MSGMAP_ENTRY* entry = AfxFindMessageEntry(GetMessageMap(), MessageInMap(message), 0, 0);
  if (!entry) return FALSE;
  *result = entry->invoke(*this, *entry, {message, wParam, lParam, nullptr});
  return TRUE;
}

LRESULT CWnd::DefWindowProcW(UINT message, WPARAM wParam, LPARAM lParam) {
  return m_pfnSuper ? ::CallWindowProcW(m_pfnSuper, m_hWnd, message, wParam, lParam)
                    : ::DefWindowProcW(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default() {
  const MSG& current = afx::CurrentMessage();
  return DefWindowProcW(current.message, current.wParam, current.lParam);
}

const MSG* CWnd::GetCurrentMessage() {
  MSG& current = afx::CurrentMessage();
  const auto place = static_cast<DWORD>(::GetMessagePos());
  current.time = static_cast<DWORD>(::GetMessageTime());
  current.pt = {static_cast<short>(LOWORD(place)), static_cast<short>(HIWORD(place))};
  return &current;
}

BOOL CWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
  return CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
  const UINT id = LOWORD(static_cast<DWORD>(wParam));
  const HWND control = reinterpret_cast<HWND>(lParam);
  if (!control) return OnCmdMsg(id, CN_COMMAND, nullptr, nullptr);
  if (ReflectLastMsg(control)) return TRUE;
  return OnCmdMsg(id, HIWORD(static_cast<DWORD>(wParam)), nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* result) {
  NMHDR* header = reinterpret_cast<NMHDR*>(lParam);
  if (ReflectLastMsg(header->hwndFrom, result)) return TRUE;
  AFX_NOTIFY notify = {result, header};
  return OnCmdMsg(static_cast<UINT>(header->idFrom),
                  static_cast<int>(MAKELONG(header->code, WM_NOTIFY)), &notify, nullptr);
}

// ---- Reflection: messages to a control's parent are offered to the control first

BOOL CWnd::ReflectLastMsg(HWND child, LRESULT* result) {
  CWnd* object = FromHandlePermanent(child);
  return object && object->SendChildNotifyLastMsg(result);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* result) {
  const MSG current = afx::CurrentMessage();
  return OnChildNotify(current.message, current.wParam, current.lParam, result);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
  AFX_MESSAGE reflected = {0, wParam, lParam, result};
  if (message == WM_COMMAND) {
    reflected.message = HIWORD(static_cast<DWORD>(wParam));
  } else if (message == WM_NOTIFY) {
    reflected.message = reinterpret_cast<NMHDR*>(lParam)->code;
  } else {
    return FALSE;
  }
  const AFX_MSGMAP_ENTRY* entry =
      AfxFindMessageEntry(GetMessageMap(), WM_REFLECT_BASE + message, reflected.message, 0);
  return entry && entry->invoke(*this, *entry, reflected);
}

void CWnd::OnDrawItem(int, DRAWITEMSTRUCT* item) {
  const bool fromMenu = item->CtlType == ODT_MENU;
  if (fromMenu || !ReflectLastMsg(item->hwndItem)) Default();
}

void CWnd::OnMeasureItem(int id, MEASUREITEMSTRUCT* item) {
  const bool fromMenu = item->CtlType == ODT_MENU;
  if (fromMenu || !ReflectLastMsg(::GetDlgItem(m_hWnd, id))) Default();
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* control, UINT) {
  LRESULT brush = 0;
  if (control && ReflectLastMsg(control->m_hWnd, &brush)) return reinterpret_cast<HBRUSH>(brush);
  return reinterpret_cast<HBRUSH>(Default());
}
