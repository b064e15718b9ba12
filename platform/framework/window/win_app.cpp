#include "framework/win_app.h"

#include "framework/command_handlers.h"
#include "framework/extension_module.h"
#include "platform/framework/base/modules.h"

namespace afx {

namespace {

CString ExecutableName() {
  wchar_t path[MAX_PATH] = {};
  ::GetModuleFileNameW(nullptr, path, ARRAYSIZE(path));
  CString name(path);
  name = name.Mid(name.ReverseFind(L'\\') + 1);
  const int dot = name.ReverseFind(L'.');
  return dot > 0 ? name.Left(dot) : name;
}

}  // namespace
}  // namespace afx

CWinApp::CWinApp(LPCWSTR appName) : m_appName(appName), m_exeName(afx::ExecutableName()) {
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

CWinApp* AfxGetApp() { return afx::ProcessState().app; }

CWinThread* AfxGetThread() { return AfxGetApp(); }

CWnd* AfxGetMainWnd() {
  CWinThread* thread = AfxGetThread();
  return thread ? thread->GetMainWnd() : nullptr;
}

LPCWSTR AfxGetAppName() {
  if (const CWinApp* app = AfxGetApp()) return app->m_pszAppName;
  static const CString name = afx::ExecutableName();
  return name;
}

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
