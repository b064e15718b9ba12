#include "framework/wnd.h"

#include "framework/extension_module.h"
#include "framework/window_handlers.h"
#include "platform/framework/window/creation_hook.h"
#include "platform/framework/window/window_binding.h"
#include "platform/framework/window/window_map.h"

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

CWnd::~CWnd() {
  if (m_hWnd && FromHandlePermanent(m_hWnd) == this) {
    ::OutputDebugStringW(L"framework: a CWnd is destroyed before its window\n");
    DestroyWindow();
  }
}

CWnd* CWnd::FromHandle(HWND window) {
  if (!window) return nullptr;
  CWnd* permanent = FromHandlePermanent(window);
  return permanent ? permanent : afx::TemporaryWindow(window);
}

CWnd* CWnd::FromHandlePermanent(HWND window) { return afx::FindPermanentWindow(window); }

BOOL CWnd::Attach(HWND window) {
  if (!window) return FALSE;
  m_hWnd = window;
  afx::SetPermanentWindow(window, this);
  return TRUE;
}

HWND CWnd::Detach() { return CWindowBinding::Release(*this); }

BOOL CWnd::SubclassWindow(HWND window) {
  if (!::IsWindow(window)) return FALSE;
  CWindowBinding::Subclass(*this, window);
  return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent) {
  return SubclassWindow(::GetDlgItem(parent->m_hWnd, static_cast<int>(id)));
}

HWND CWnd::UnsubclassWindow() { return CWindowBinding::Release(*this); }

BOOL CWnd::Create(LPCWSTR className, LPCWSTR windowName, DWORD style, const RECT& rect,
                  CWnd* parent, UINT id, CCreateContext* context) {
  return CreateEx(0, className, windowName, style | WS_CHILD, rect, parent, id, context);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR windowName, DWORD style,
                    const RECT& rect, CWnd* parent, UINT id, LPVOID param) {
  return CreateEx(exStyle, className, windowName, style, rect.left, rect.top,
                  rect.right - rect.left, rect.bottom - rect.top, parent ? parent->m_hWnd : nullptr,
                  reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), param);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR windowName, DWORD style, int x, int y,
                    int width, int height, HWND parent, HMENU idOrMenu, LPVOID param) {
  CREATESTRUCTW create = {param, AfxGetInstanceHandle(),   idOrMenu,   parent,    height, width, y,
                          x,     static_cast<LONG>(style), windowName, className, exStyle};
  if (!PreCreateWindow(create)) {
    PostNcDestroy();
    return FALSE;
  }
  const afx::CreationHook hook(*this);
  const HWND window =
      ::CreateWindowExW(create.dwExStyle, create.lpszClass, create.lpszName,
                        static_cast<DWORD>(create.style), create.x, create.y, create.cx, create.cy,
                        create.hwndParent, create.hMenu, create.hInstance, create.lpCreateParams);
  // A window that began and failed has told us its end itself.
  if (hook.IsBound()) return window != nullptr;
  if (window) ::DestroyWindow(window);  // no hook was to be had, so it would not be ours
  PostNcDestroy();
  return FALSE;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCTW& create) {
  if (!create.lpszClass) {
    create.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW));
  }
  return TRUE;
}

BOOL CWnd::DestroyWindow() {
  const HWND window = m_hWnd;
  if (!window) return FALSE;
  const bool permanent = FromHandlePermanent(window) == this;
  const BOOL destroyed = ::DestroyWindow(window);
  // An attached window's end is not seen, and `this` may be deleted by now: only the map can tell.
  if (permanent && FromHandlePermanent(window) == this) Detach();
  return destroyed;
}

BOOL CWnd::PreTranslateMessage(MSG*) { return FALSE; }
