#include "framework/win_app.h"

#include "framework/command_handlers.h"
#include "framework/extension_module.h"
#include "platform/framework/base/modules.h"

namespace {

CString ExecutableName() {
  wchar_t path[MAX_PATH] = {};
  ::GetModuleFileNameW(nullptr, path, ARRAYSIZE(path));
  CString name(path);
  name = name.Mid(name.ReverseFind(L'\\') + 1);
  const int dot = name.ReverseFind(L'.');
  return dot > 0 ? name.Left(dot) : name;
}

// Adds the icon that goes with the buttons when the caller gives no icon.
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
      return type;  // boxes with Retry have no icon, as usual
  }
}

// The window that the box disables: the last active popup of the main window, or of the active
// window when there is no application.
HWND OwnerOfMessageBox() {
  CWnd* main = AfxGetMainWnd();
  const HWND owner = main ? main->m_hWnd : ::GetActiveWindow();
  return owner ? ::GetLastActivePopup(owner) : nullptr;
}

int ShowMessageBox(LPCWSTR text, UINT type) {
  return ::MessageBoxW(OwnerOfMessageBox(), text, AfxGetAppName(), WithIcon(type));
}

}  // namespace

CWinApp::CWinApp(LPCWSTR appName) : m_appName(appName), m_exeName(ExecutableName()) {
  if (!appName) m_appName = m_exeName;
  m_pszAppName = m_appName;
  m_pszExeName = m_exeName;
  afx::ProcessState().app = this;
}

CWinApp::~CWinApp() {
  if (afx::ProcessState().app == this) afx::ProcessState().app = nullptr;
}

HCURSOR CWinApp::LoadCursorW(LPCWSTR name) const {
  return ::LoadCursorW(AfxFindResourceHandle(name, RT_GROUP_CURSOR), name);
}

HICON CWinApp::LoadIconW(LPCWSTR name) const {
  return ::LoadIconW(AfxFindResourceHandle(name, RT_GROUP_ICON), name);
}

HCURSOR CWinApp::LoadStandardCursor(LPCSTR name) const { return ::LoadCursorA(nullptr, name); }

HICON CWinApp::LoadStandardIcon(LPCSTR name) const { return ::LoadIconA(nullptr, name); }

void CWinApp::OnAppExit() {
  if (m_pMainWnd) m_pMainWnd->SendMessageW(WM_CLOSE);
}

// ---- The application of the process

CWinApp* AfxGetApp() { return afx::ProcessState().app; }

CWinThread* AfxGetThread() { return AfxGetApp(); }

CWnd* AfxGetMainWnd() {
  CWinThread* thread = AfxGetThread();
  return thread ? thread->GetMainWnd() : nullptr;
}

LPCWSTR AfxGetAppName() {
  if (const CWinApp* app = AfxGetApp()) return app->m_pszAppName;
  static const CString name = ExecutableName();
  return name;
}

// ---- Message boxes

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

// ---- Running

void AfxPostQuitMessage(int exitCode) { ::PostQuitMessage(exitCode); }

BOOL AfxWinInit(HINSTANCE instance, HINSTANCE, LPWSTR commandLine, int show) {
  CWinApp* app = AfxGetApp();
  if (!app) return FALSE;
  afx::ProcessState().instance = instance;
  app->m_hInstance = instance;
  app->m_lpCmdLine = commandLine;
  app->m_nCmdShow = show;
  return TRUE;
}

int AfxWinMain(HINSTANCE instance, HINSTANCE previous, LPWSTR commandLine, int show) {
  constexpr int kFailed = -1;
  if (!AfxWinInit(instance, previous, commandLine, show)) return kFailed;
  CWinApp* app = AfxGetApp();
  if (!app->InitApplication()) return kFailed;
  if (app->InitInstance()) return app->Run();
  if (app->m_pMainWnd) app->m_pMainWnd->DestroyWindow();
  return app->ExitInstance();
}
