// CWnd: window classes, creation and destruction, and the members that are more than one call of
// the system.

#include "framework/wnd.h"

#include <algorithm>
#include <cwchar>
#include <set>
#include <string>

#include "framework/data_exchange.h"
#include "framework/dc.h"
#include "framework/exception.h"
#include "framework/extension_module.h"
#include "framework/menu.h"
#include "framework/win_app.h"
#include "framework/window_handlers.h"
#include "platform/framework/window/wnd_binding.h"

// ---- Window classes

namespace {

// Keeps the names of the classes; their addresses stay valid.
LPCWSTR KeepName(const std::wstring& name) {
  static auto& names = *new std::set<std::wstring>;
  return names.insert(name).first->c_str();
}

}  // namespace

BOOL AfxRegisterClass(WNDCLASSW* windowClass) {
  WNDCLASSW known;
  if (::GetClassInfoW(windowClass->hInstance, windowClass->lpszClassName, &known)) return TRUE;
  return ::RegisterClassW(windowClass) != 0;
}

LPCWSTR AfxRegisterWndClass(UINT classStyle, HCURSOR cursor, HBRUSH background, HICON icon) {
  // The name contains the combination, so that the same combination finds its class again.
  wchar_t text[96];
  std::swprintf(text, std::size(text), L"Afx:%x:%p:%p:%p", classStyle, static_cast<void*>(cursor),
                static_cast<void*>(background), static_cast<void*>(icon));
  const LPCWSTR name = KeepName(text);
  WNDCLASSW windowClass = {};
  windowClass.style = classStyle;
  windowClass.lpfnWndProc = &AfxWndProc;
  windowClass.hInstance = AfxGetInstanceHandle();
  windowClass.hCursor = cursor;
  windowClass.hbrBackground = background;
  windowClass.hIcon = icon;
  windowClass.lpszClassName = name;
  if (!AfxRegisterClass(&windowClass)) AfxThrowResourceException();
  return name;
}

// ---- Creation and destruction

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
  afx::SetPermanentWindow(window, this);
  m_hWnd = window;
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
  // If creation failed after the window was bound, the end of the window has already released the
  // object.
  if (hook.IsBound()) return window != nullptr;
  if (window) ::DestroyWindow(window);  // without the hook the window is not bound to this object
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
  // The object gets no messages of an attached window, and `this` may be deleted: only the map
  // shows whether the object still holds the handle.
  if (permanent && FromHandlePermanent(window) == this) Detach();
  return destroyed;
}

BOOL CWnd::PreTranslateMessage(MSG*) { return FALSE; }

// ---- Calls

BOOL CWnd::ScreenToClient(RECT* rect) const {
  return ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(rect), 2) != 0 ||
         ::IsWindow(m_hWnd);
}

BOOL CWnd::ClientToScreen(RECT* rect) const {
  return ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<POINT*>(rect), 2) != 0 ||
         ::IsWindow(m_hWnd);
}

void CWnd::MapWindowPoints(CWnd* to, POINT* points, UINT count) const {
  ::MapWindowPoints(m_hWnd, to ? to->m_hWnd : nullptr, points, count);
}

void CWnd::MapWindowPoints(CWnd* to, RECT* rect) const {
  MapWindowPoints(to, reinterpret_cast<POINT*>(rect), 2);
}

BOOL CWnd::SetWindowPos(const CWnd* insertAfter, int x, int y, int width, int height, UINT flags) {
  return ::SetWindowPos(m_hWnd, insertAfter ? insertAfter->m_hWnd : nullptr, x, y, width, height,
                        flags);
}

void CWnd::CenterWindow(CWnd* over) {
  RECT own;
  GetWindowRect(&own);
  RECT work;
  ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  RECT around = work;
  HWND parent = over ? over->m_hWnd : ::GetParent(m_hWnd);
  if (parent && ::IsWindowVisible(parent)) ::GetWindowRect(parent, &around);
  const int width = own.right - own.left;
  const int height = own.bottom - own.top;
  const int x = (around.left + around.right - width) / 2;
  const int y = (around.top + around.bottom - height) / 2;
  POINT place = {std::max(std::min<int>(x, work.right - width), int{work.left}),
                 std::max(std::min<int>(y, work.bottom - height), int{work.top})};
  if (GetStyle() & WS_CHILD) ::ScreenToClient(::GetParent(m_hWnd), &place);
  SetWindowPos(nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CWnd::CalcWindowRect(RECT* clientRect) const {
  ::AdjustWindowRectEx(clientRect, GetStyle(), ::GetMenu(m_hWnd) != nullptr, GetExStyle());
}

namespace {

BOOL ModifyWindowStyle(CWnd& window, int which, DWORD remove, DWORD add, UINT setPosFlags) {
  const auto before = static_cast<DWORD>(::GetWindowLongW(window.m_hWnd, which));
  const DWORD after = (before & ~remove) | add;
  if (before == after) return FALSE;
  ::SetWindowLongW(window.m_hWnd, which, static_cast<LONG>(after));
  if (setPosFlags) {
    window.SetWindowPos(nullptr, 0, 0, 0, 0,
                        setPosFlags | SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
  return TRUE;
}

}  // namespace

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add, UINT setPosFlags) {
  return ModifyWindowStyle(*this, GWL_STYLE, remove, add, setPosFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD remove, DWORD add, UINT setPosFlags) {
  return ModifyWindowStyle(*this, GWL_EXSTYLE, remove, add, setPosFlags);
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam) {
  for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
    ::SendMessageW(child, message, wParam, lParam);
    FromHandle(child)->SendMessageToDescendants(message, wParam, lParam);
  }
}

CWnd* CWnd::GetOwner() const {
  const HWND owner = ::GetWindow(m_hWnd, GW_OWNER);
  return owner ? FromHandle(owner) : GetParent();
}

CMenu* CWnd::GetMenu() const { return CMenu::FromHandle(::GetMenu(m_hWnd)); }

BOOL CWnd::SetMenu(CMenu* menu) { return ::SetMenu(m_hWnd, menu ? menu->m_hMenu : nullptr); }

CMenu* CWnd::GetSystemMenu(BOOL revert) const {
  return CMenu::FromHandle(::GetSystemMenu(m_hWnd, revert));
}

void CWnd::GetWindowTextW(CString& text) const {
  const int length = GetWindowTextLengthW();
  GetWindowTextW(text.GetBufferSetLength(length), length + 1);
  text.ReleaseBuffer();
}

int CWnd::GetDlgItemTextW(int id, CString& text) const {
  const HWND item = ::GetDlgItem(m_hWnd, id);
  if (!item) {
    text.Empty();
    return 0;
  }
  FromHandle(item)->GetWindowTextW(text);
  return text.GetLength();
}

CFont* CWnd::GetFont() const {
  return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessageW(WM_GETFONT)));
}

void CWnd::SetFont(CFont* font, BOOL redraw) {
  SendMessageW(WM_SETFONT, reinterpret_cast<WPARAM>(font ? static_cast<HFONT>(*font) : nullptr),
               redraw);
}

int CWnd::MessageBoxW(LPCWSTR text, LPCWSTR caption, UINT type) {
  return ::MessageBoxW(m_hWnd, text, caption ? caption : AfxGetAppName(), type);
}

CDC* CWnd::GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); }

CDC* CWnd::GetWindowDC() { return CDC::FromHandle(::GetWindowDC(m_hWnd)); }

int CWnd::ReleaseDC(CDC* dc) { return ::ReleaseDC(m_hWnd, dc->m_hDC); }

CDC* CWnd::BeginPaint(PAINTSTRUCT* paint) { return CDC::FromHandle(::BeginPaint(m_hWnd, paint)); }

BOOL CWnd::RedrawWindow(const RECT* rect, CRgn* region, UINT flags) {
  return ::RedrawWindow(m_hWnd, rect, region ? static_cast<HRGN>(*region) : nullptr, flags);
}

int CWnd::GetCheckedRadioButton(int firstId, int lastId) const {
  for (int id = firstId; id <= lastId; ++id) {
    if (IsDlgButtonChecked(id)) return id;
  }
  return 0;
}

BOOL CWnd::UpdateData(BOOL saveAndValidate) {
  CDataExchange exchange(this, saveAndValidate);
  try {
    DoDataExchange(&exchange);
    return TRUE;
  } catch (CUserException* refused) {
    refused->Delete();
    return FALSE;
  }
}
