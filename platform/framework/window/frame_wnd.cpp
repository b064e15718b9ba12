#include "framework/frame_wnd.h"

#include "framework/extension_module.h"
#include "framework/menu.h"
#include "framework/win_app.h"

const RECT CFrameWnd::rectDefault = {CW_USEDEFAULT, CW_USEDEFAULT, 0, 0};

BOOL CFrameWnd::Create(LPCWSTR className, LPCWSTR windowName, DWORD style, const RECT& rect,
                       CWnd* parent, LPCWSTR menuName, DWORD exStyle, CCreateContext* context) {
  CMenu menu;
  if (menuName && !menu.LoadMenuW(menuName)) {
    PostNcDestroy();
    return FALSE;
  }
  const bool systemChooses = rect.left == CW_USEDEFAULT;
  const int width = systemChooses ? CW_USEDEFAULT : rect.right - rect.left;
  const int height = systemChooses ? CW_USEDEFAULT : rect.bottom - rect.top;
  if (!CreateEx(exStyle, className, windowName, style, rect.left, rect.top, width, height,
                parent ? parent->m_hWnd : nullptr, menu.m_hMenu, context)) {
    return FALSE;
  }
  menu.Detach();  // the window owns the menu now
  return TRUE;
}

BOOL CFrameWnd::LoadAccelTable(LPCWSTR name) {
  m_hAccelTable = ::LoadAcceleratorsW(AfxFindResourceHandle(name, RT_ACCELERATOR), name);
  return m_hAccelTable != nullptr;
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCTW& create) {
  if (!create.lpszClass) {
    create.lpszClass =
        AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                            reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_WINDOW + 1)));
  }
  return CWnd::PreCreateWindow(create);
}

BOOL CFrameWnd::PreTranslateMessage(MSG* message) {
  return CWnd::PreTranslateMessage(message) ||
         (m_hAccelTable && ::TranslateAcceleratorW(m_hWnd, m_hAccelTable, message));
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
  if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) return TRUE;
  CWinApp* app = AfxGetApp();
  return app && app->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void CFrameWnd::PostNcDestroy() { delete this; }
