// CFrameWnd: a main window with a caption and a menu. Create it with new: it deletes itself after
// its window was destroyed.
#pragma once

#include "wnd.h"

class AFX_FRAMEWORK CFrameWnd : public CWnd {
 public:
  static const RECT rectDefault;  // the system chooses position and size

  // A null className is a class with an arrow cursor and the window background. menuName is in the
  // resources.
  virtual BOOL Create(LPCWSTR className, LPCWSTR windowName, DWORD style = WS_OVERLAPPEDWINDOW,
                      const RECT& rect = rectDefault, CWnd* parent = nullptr,
                      LPCWSTR menuName = nullptr, DWORD exStyle = 0,
                      CCreateContext* context = nullptr);
  // Loads an accelerator table from the resources.
  BOOL LoadAccelTable(LPCWSTR name);

  BOOL PreTranslateMessage(MSG* message) override;
  // Routes to the window, then to the application.
  BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

 protected:
  BOOL PreCreateWindow(CREATESTRUCTW& create) override;
  void PostNcDestroy() override;

  HACCEL m_hAccelTable = nullptr;
};
