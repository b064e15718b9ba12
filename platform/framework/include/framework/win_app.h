// CWinThread and CWinApp: the message loop, and the application that runs it. An application is one
// global object of a class derived from CWinApp. It is optional: see AfxPreTranslateMessage.
#pragma once

#include "message_map.h"
#include "string.h"
#include "wnd.h"

class AFX_FRAMEWORK CWinThread : public CCmdTarget {
 public:
  CWnd* m_pMainWnd = nullptr;  // set by the host; the loop ends when it is destroyed
  CWnd* m_pActiveWnd = nullptr;
  MSG m_msgCur = {};  // the message being pumped

  ~CWinThread() override;

  virtual BOOL InitInstance() { return FALSE; }  // FALSE: ExitInstance follows, Run does not
  virtual int Run();           // the message loop until WM_QUIT; returns ExitInstance()
  virtual int ExitInstance();  // the process's exit code
  virtual CWnd* GetMainWnd();

  // Gets one message, offers it to PreTranslateMessage and dispatches it. FALSE for WM_QUIT.
  virtual BOOL PumpMessage();
  virtual BOOL PreTranslateMessage(MSG* message);
  // Called with 0, 1, 2 ... while there is no message, until it returns FALSE or a message arrives.
  virtual BOOL OnIdle(LONG count);
  // FALSE for messages after which OnIdle is not called (pointer moves, caret timer).
  virtual BOOL IsIdleMessage(MSG* message);
};

class AFX_FRAMEWORK CWinApp : public CWinThread {
 public:
  HINSTANCE m_hInstance = nullptr;
  LPWSTR m_lpCmdLine = nullptr;  // without the program's name
  int m_nCmdShow = SW_SHOWNORMAL;
  LPCWSTR m_pszAppName = nullptr;  // as given, or the executable's file name without .exe
  LPCWSTR m_pszExeName = nullptr;

  explicit CWinApp(LPCWSTR appName = nullptr);
  ~CWinApp() override;

  virtual BOOL InitApplication() { return TRUE; }
  BOOL InitInstance() override { return TRUE; }

  // From the resources, see AfxFindResourceHandle; null when there is none.
  HCURSOR LoadCursorW(LPCWSTR name) const;
  HCURSOR LoadCursorW(UINT id) const { return LoadCursorW(MAKEINTRESOURCEW(id)); }
  HICON LoadIconW(LPCWSTR name) const;
  HICON LoadIconW(UINT id) const { return LoadIconW(MAKEINTRESOURCEW(id)); }
  // Those of the system: IDC_ARROW, IDI_APPLICATION, ...
  HCURSOR LoadStandardCursor(LPCWSTR name) const { return ::LoadCursorW(nullptr, name); }
  HICON LoadStandardIcon(LPCWSTR name) const { return ::LoadIconW(nullptr, name); }
  virtual int DoMessageBox(LPCWSTR text, UINT type, UINT helpId);

  // ---- The same for hosts compiled without UNICODE

  HCURSOR LoadCursorA(LPCWSTR name) const { return LoadCursorW(name); }
  HCURSOR LoadCursorA(UINT id) const { return LoadCursorW(id); }
  HICON LoadIconA(LPCWSTR name) const { return LoadIconW(name); }
  HICON LoadIconA(UINT id) const { return LoadIconW(id); }
  HCURSOR LoadStandardCursor(LPCSTR name) const;
  HICON LoadStandardIcon(LPCSTR name) const;

  afx_msg void OnAppExit();  // closes the main window

 private:
  CString m_appName;
  CString m_exeName;
};

// The application object, or null when the process has none.
AFX_FRAMEWORK CWinApp* AfxGetApp();
AFX_FRAMEWORK CWinThread* AfxGetThread();
AFX_FRAMEWORK CWnd* AfxGetMainWnd();
AFX_FRAMEWORK LPCWSTR AfxGetAppName();

// A message box over the main window, with the application's name as caption. type is that of
// MessageBox; an icon is added according to the buttons when it has none.
AFX_FRAMEWORK int AfxMessageBox(LPCWSTR text, UINT type = MB_OK, UINT helpId = 0);
AFX_FRAMEWORK int AfxMessageBox(UINT textId, UINT type = MB_OK, UINT helpId = UINT(-1));

// Ends the message loop with this exit code.
AFX_FRAMEWORK void AfxPostQuitMessage(int exitCode);

// Prepares the application object; FALSE when there is none. Only AfxWinMain needs it.
AFX_FRAMEWORK BOOL AfxWinInit(HINSTANCE instance, HINSTANCE previous, LPWSTR commandLine, int show);
// Runs a framework-style host: AfxWinInit, InitInstance, Run. Returns the exit code.
AFX_FRAMEWORK int AfxWinMain(HINSTANCE instance, HINSTANCE previous, LPWSTR commandLine, int show);
