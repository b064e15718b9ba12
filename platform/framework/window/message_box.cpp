// AfxMessageBox, and what the user is told of an exception.

#include "platform/framework/window/message_box.h"
#include "framework/win_app.h"

namespace {

// The icon that goes with the buttons when the caller names none.
UINT WithIcon(UINT type) {
  if (type & MB_ICONMASK) return type;
  switch (type & MB_TYPEMASK) {
    case MB_OK:
    case MB_OKCANCEL:
      return type | MB_ICONEXCLAMATION;
    case MB_YESNO:
    case MB_YESNOCANCEL:
      return type | MB_ICONQUESTION;
    default:
      return type;  // retry boxes have none, as hosts know it
  }
}

// The window that must wait for the answer: the last active popup of the main window, or what is
// active when there is no application.
HWND OwnerOfMessageBox() {
  CWnd* main = AfxGetMainWnd();
  const HWND owner = main ? main->m_hWnd : ::GetActiveWindow();
  return owner ? ::GetLastActivePopup(owner) : nullptr;
}

int ShowMessageBox(LPCWSTR text, UINT type) {
  return ::MessageBoxW(OwnerOfMessageBox(), text, AfxGetAppName(), WithIcon(type));
}

}  // namespace

int CWinApp::DoMessageBox(LPCWSTR text, UINT type, UINT) { return ShowMessageBox(text, type); }

int AfxMessageBox(LPCWSTR text, UINT type, UINT helpId) {
  CWinApp* app = AfxGetApp();
  return app ? app->DoMessageBox(text, type, helpId) : ShowMessageBox(text, type);
}

int AfxMessageBox(UINT textId, UINT type, UINT helpId) {
  CString text;
  text.LoadStringW(textId);
  return AfxMessageBox(text, type, helpId == UINT(-1) ? textId : helpId);
}

void afx::ReportAndDelete(CException* exception) {
  wchar_t sentence[512] = {};
  if (exception->GetErrorMessage(sentence, ARRAYSIZE(sentence))) {
    AfxMessageBox(sentence, MB_ICONSTOP);
  }
  exception->Delete();
}
