// CFrameWnd: a main window with a caption and a menu. Make it with new: it deletes itself when its
// window is gone.
#pragma once

#include "framework/wnd.h"

class AFX_FRAMEWORK CFrameWnd : public CWnd {
 public:
  static const RECT rectDefault;  // lets the system choose place and size

  // className null: one with an arrow cursor and the window background. menuName: of the resources.
  virtual BOOL Create(LPCWSTR className, LPCWSTR windowName, DWORD style = WS_OVERLAPPEDWINDOW,
                      const RECT& rect = rectDefault, CWnd* parent = nullptr,
                      LPCWSTR menuName = nullptr, DWORD exStyle = 0,
                      CCreateContext* context = nullptr);
  // Keys that become commands; of the resources.
  BOOL LoadAccelTable(LPCWSTR name);

  BOOL PreTranslateMessage(MSG* message) override;
  // Itself, then the application.
  BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

 protected:
  BOOL PreCreateWindow(CREATESTRUCTW& create) override;
  void PostNcDestroy() override;

  HACCEL m_hAccelTable = nullptr;
};
