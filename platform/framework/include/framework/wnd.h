// CWnd: a window. The object holds the handle of a system window from creation, Attach or
// SubclassWindow until the window is destroyed or detached.
//
// Ownership: a CWnd belongs to its creator. If the window is destroyed first, by DestroyWindow or
// with its parent, the object becomes empty and PostNcDestroy is called. If the object is destroyed
// first, it destroys its window. A window is used only on the thread that created it.
//
// Members named after macros of <windows.h> are declared twice, see framework/platform.h.
#pragma once

#include "geometry.h"
#include "message_map.h"
#include "string.h"

class CDC;
class CDataExchange;
class CFont;
class CMenu;
class CScrollBar;
struct CCreateContext;

class AFX_FRAMEWORK CWnd : public CCmdTarget {
 public:
  HWND m_hWnd = nullptr;

  CWnd() = default;
  ~CWnd() override;

  // ---- Handles and objects

  // The object that holds the handle, or a temporary one; null only for a null handle. A temporary
  // object does not own the window and exists as long as the window.
  static CWnd* FromHandle(HWND window);
  // The object that holds the handle, or null.
  static CWnd* FromHandlePermanent(HWND window);
  HWND GetSafeHwnd() const { return m_hWnd; }
  operator HWND() const { return m_hWnd; }

  // Sets the handle of an empty object, which gets no messages of the window. FALSE for a null
  // handle.
  BOOL Attach(HWND window);
  // Gives up the handle; the window is not destroyed.
  HWND Detach();
  // Sets the handle; the object then gets the window's messages first. Default() calls the old
  // procedure.
  BOOL SubclassWindow(HWND window);
  BOOL SubclassDlgItem(UINT id, CWnd* parent);
  // Restores the old procedure and gives up the handle.
  HWND UnsubclassWindow();

  // ---- Creation and destruction

  // A child window (WS_CHILD) with control id `id`. FALSE when the system refuses.
  virtual BOOL Create(LPCWSTR className, LPCWSTR windowName, DWORD style, const RECT& rect,
                      CWnd* parent, UINT id, CCreateContext* context = nullptr);
  // Any window. `param` reaches WM_CREATE as lpCreateParams.
  virtual BOOL CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR windowName, DWORD style, int x,
                        int y, int width, int height, HWND parent, HMENU idOrMenu,
                        LPVOID param = nullptr);
  virtual BOOL CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR windowName, DWORD style,
                        const RECT& rect, CWnd* parent, UINT id, LPVOID param = nullptr);
  // FALSE when there is no window or the system refuses to destroy it.
  virtual BOOL DestroyWindow();

  // ---- Hooks for derived classes

  // Called before the window is created, and may change `create`; FALSE cancels. Sets a window
  // class when there is none.
  virtual BOOL PreCreateWindow(CREATESTRUCTW& create);
  // The handle is known; no message has been handled yet (before WM_CREATE).
  virtual void PreSubclassWindow() {}
  // Sees input before it is dispatched (AfxPreTranslateMessage). TRUE: handled, do not dispatch.
  virtual BOOL PreTranslateMessage(MSG* message);
  BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

  // ---- The current message

  // Passes the current message unchanged to DefWindowProc, as the handlers of CWnd do.
  LRESULT Default();
  static const MSG* GetCurrentMessage();
  // Offers the current message to the child it came from, such as an owner-drawn button, which may
  // handle it in OnChildNotify. FALSE when it does not.
  static BOOL ReflectLastMsg(HWND child, LRESULT* result = nullptr);
  BOOL SendChildNotifyLastMsg(LRESULT* result = nullptr);

  // ---- Messages

  LRESULT SendMessageW(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return ::SendMessageW(m_hWnd, message, wParam, lParam);
  }
  BOOL PostMessageW(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return ::PostMessageW(m_hWnd, message, wParam, lParam);
  }
  BOOL IsDialogMessageW(MSG* message) { return ::IsDialogMessageW(m_hWnd, message); }
  void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

  // ---- Place and size, pixels

  BOOL GetClientRect(RECT* rect) const { return ::GetClientRect(m_hWnd, rect); }
  BOOL GetWindowRect(RECT* rect) const { return ::GetWindowRect(m_hWnd, rect); }
  BOOL ScreenToClient(POINT* point) const { return ::ScreenToClient(m_hWnd, point); }
  BOOL ScreenToClient(RECT* rect) const;
  BOOL ClientToScreen(POINT* point) const { return ::ClientToScreen(m_hWnd, point); }
  BOOL ClientToScreen(RECT* rect) const;
  void MapWindowPoints(CWnd* to, POINT* points, UINT count) const;
  void MapWindowPoints(CWnd* to, RECT* rect) const;
  void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE) {
    ::MoveWindow(m_hWnd, x, y, width, height, repaint);
  }
  void MoveWindow(const RECT* r, BOOL repaint = TRUE) {
    MoveWindow(r->left, r->top, r->right - r->left, r->bottom - r->top, repaint);
  }
  // insertAfter may be one of wndTop, wndBottom, wndTopMost, wndNoTopMost, or null.
  BOOL SetWindowPos(const CWnd* insertAfter, int x, int y, int width, int height, UINT flags);
  BOOL BringWindowToTop() { return ::BringWindowToTop(m_hWnd); }
  void CenterWindow(CWnd* over = nullptr);
  void CalcWindowRect(RECT* clientRect) const;

  static const CWnd wndTop, wndBottom, wndTopMost, wndNoTopMost;

  // ---- State

  BOOL ShowWindow(int command) { return ::ShowWindow(m_hWnd, command); }
  BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
  BOOL IsIconic() const { return ::IsIconic(m_hWnd); }
  BOOL IsZoomed() const { return ::IsZoomed(m_hWnd); }
  BOOL EnableWindow(BOOL enable = TRUE) { return ::EnableWindow(m_hWnd, enable); }
  BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
  DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongW(m_hWnd, GWL_STYLE)); }
  DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLongW(m_hWnd, GWL_EXSTYLE)); }
  // FALSE when nothing changes. setPosFlags other than 0 also call SetWindowPos with them.
  BOOL ModifyStyle(DWORD remove, DWORD add, UINT setPosFlags = 0);
  BOOL ModifyStyleEx(DWORD remove, DWORD add, UINT setPosFlags = 0);
  CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
  static CWnd* GetFocus() { return FromHandle(::GetFocus()); }
  CWnd* SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
  static CWnd* GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
  BOOL SetForegroundWindow() { return ::SetForegroundWindow(m_hWnd); }
  static CWnd* GetForegroundWindow() { return FromHandle(::GetForegroundWindow()); }
  CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
  static CWnd* GetCapture() { return FromHandle(::GetCapture()); }
  UINT_PTR SetTimer(UINT_PTR id, UINT milliseconds, TIMERPROC procedure) {
    return ::SetTimer(m_hWnd, id, milliseconds, procedure);
  }
  BOOL KillTimer(UINT_PTR id) { return ::KillTimer(m_hWnd, id); }
  int GetScrollPos(int bar) const { return ::GetScrollPos(m_hWnd, bar); }
  int SetScrollPos(int bar, int position, BOOL redraw = TRUE) {
    return ::SetScrollPos(m_hWnd, bar, position, redraw);
  }
  void SetScrollRange(int bar, int smallest, int largest, BOOL redraw = TRUE) {
    ::SetScrollRange(m_hWnd, bar, smallest, largest, redraw);
  }
  CMenu* GetMenu() const;
  BOOL SetMenu(CMenu* menu);
  CMenu* GetSystemMenu(BOOL revert) const;
  void DrawMenuBar() { ::DrawMenuBar(m_hWnd); }
  HICON SetIcon(HICON icon, BOOL big) {
    return reinterpret_cast<HICON>(
        SendMessageW(WM_SETICON, static_cast<WPARAM>(big), reinterpret_cast<LPARAM>(icon)));
  }

  // ---- Relatives

  CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
  CWnd* SetParent(CWnd* parent) {
    return FromHandle(::SetParent(m_hWnd, parent ? parent->m_hWnd : nullptr));
  }
  CWnd* GetOwner() const;
  CWnd* GetTopLevelParent() const { return FromHandle(::GetAncestor(m_hWnd, GA_ROOT)); }
  CWnd* GetWindow(UINT relation) const { return FromHandle(::GetWindow(m_hWnd, relation)); }
  BOOL IsChild(const CWnd* window) const { return ::IsChild(m_hWnd, window->m_hWnd); }
  CWnd* ChildWindowFromPoint(POINT point) const {
    return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
  }
  static CWnd* GetDesktopWindow() { return FromHandle(::GetDesktopWindow()); }
  static CWnd* WindowFromPoint(POINT point) { return FromHandle(::WindowFromPoint(point)); }
  static CWnd* FindWindowW(LPCWSTR className, LPCWSTR windowName) {
    return FromHandle(::FindWindowW(className, windowName));
  }

  // ---- Text and font

  void SetWindowTextW(LPCWSTR text) { ::SetWindowTextW(m_hWnd, text); }
  int GetWindowTextW(LPWSTR text, int maxCount) const {
    return ::GetWindowTextW(m_hWnd, text, maxCount);
  }
  void GetWindowTextW(CString& text) const;
  int GetWindowTextLengthW() const { return ::GetWindowTextLengthW(m_hWnd); }
  CFont* GetFont() const;
  void SetFont(CFont* font, BOOL redraw = TRUE);
  // A null caption is the application's name.
  int MessageBoxW(LPCWSTR text, LPCWSTR caption = nullptr, UINT type = MB_OK);

  // ---- Painting

  CDC* GetDC();  // release it with ReleaseDC
  CDC* GetWindowDC();
  int ReleaseDC(CDC* dc);
  CDC* BeginPaint(PAINTSTRUCT* paint);
  void EndPaint(const PAINTSTRUCT* paint) { ::EndPaint(m_hWnd, paint); }
  void Invalidate(BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, erase); }
  void InvalidateRect(const RECT* rect, BOOL erase = TRUE) {
    ::InvalidateRect(m_hWnd, rect, erase);
  }
  void ValidateRect(const RECT* rect) { ::ValidateRect(m_hWnd, rect); }
  void UpdateWindow() { ::UpdateWindow(m_hWnd); }
  BOOL GetUpdateRect(RECT* rect, BOOL erase = FALSE) {
    return ::GetUpdateRect(m_hWnd, rect, erase);
  }
  BOOL RedrawWindow(const RECT* rect = nullptr, class CRgn* region = nullptr,
                    UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
  void SetRedraw(BOOL redraw = TRUE) { SendMessageW(WM_SETREDRAW, static_cast<WPARAM>(redraw)); }

  // ---- Items of a dialog; ids of children

  CWnd* GetDlgItem(int id) const { return FromHandle(::GetDlgItem(m_hWnd, id)); }
  void GetDlgItem(int id, HWND* item) const { *item = ::GetDlgItem(m_hWnd, id); }
  int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
  int SetDlgCtrlID(int id) {
    return static_cast<int>(::SetWindowLongPtrW(m_hWnd, GWLP_ID, static_cast<LONG_PTR>(id)));
  }
  LRESULT SendDlgItemMessageW(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return ::SendDlgItemMessageW(m_hWnd, id, message, wParam, lParam);
  }
  void SetDlgItemTextW(int id, LPCWSTR text) { ::SetDlgItemTextW(m_hWnd, id, text); }
  int GetDlgItemTextW(int id, LPWSTR text, int maxCount) const {
    return static_cast<int>(::GetDlgItemTextW(m_hWnd, id, text, maxCount));
  }
  int GetDlgItemTextW(int id, CString& text) const;
  void SetDlgItemInt(int id, UINT value, BOOL isSigned = TRUE) {
    ::SetDlgItemInt(m_hWnd, id, value, isSigned);
  }
  UINT GetDlgItemInt(int id, BOOL* translated = nullptr, BOOL isSigned = TRUE) const {
    return ::GetDlgItemInt(m_hWnd, id, translated, isSigned);
  }
  void CheckDlgButton(int id, UINT check) { ::CheckDlgButton(m_hWnd, id, check); }
  void CheckRadioButton(int firstId, int lastId, int checkedId) {
    ::CheckRadioButton(m_hWnd, firstId, lastId, checkedId);
  }
  UINT IsDlgButtonChecked(int id) const { return ::IsDlgButtonChecked(m_hWnd, id); }
  int GetCheckedRadioButton(int firstId, int lastId) const;
  CWnd* GetNextDlgTabItem(CWnd* item, BOOL previous = FALSE) const {
    return FromHandle(::GetNextDlgTabItem(m_hWnd, item->m_hWnd, previous));
  }
  // Moves values between the dialog's items and its members by DoDataExchange; FALSE when a value
  // was refused (the user has been informed).
  BOOL UpdateData(BOOL saveAndValidate = TRUE);

  // ---- The same for hosts compiled without UNICODE

  LRESULT SendMessageA(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(message, wParam, lParam);
  }
  BOOL PostMessageA(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return PostMessageW(message, wParam, lParam);
  }
  BOOL IsDialogMessageA(MSG* message) { return IsDialogMessageW(message); }
  static CWnd* FindWindowA(LPCWSTR className, LPCWSTR windowName) {
    return FindWindowW(className, windowName);
  }
  void SetWindowTextA(LPCWSTR text) { SetWindowTextW(text); }
  int GetWindowTextA(LPWSTR text, int maxCount) const { return GetWindowTextW(text, maxCount); }
  void GetWindowTextA(CString& text) const { GetWindowTextW(text); }
  int GetWindowTextLengthA() const { return GetWindowTextLengthW(); }
  int MessageBoxA(LPCWSTR text, LPCWSTR caption = nullptr, UINT type = MB_OK) {
    return MessageBoxW(text, caption, type);
  }
  LRESULT SendDlgItemMessageA(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendDlgItemMessageW(id, message, wParam, lParam);
  }
  void SetDlgItemTextA(int id, LPCWSTR text) { SetDlgItemTextW(id, text); }
  int GetDlgItemTextA(int id, LPWSTR text, int maxCount) const {
    return GetDlgItemTextW(id, text, maxCount);
  }
  int GetDlgItemTextA(int id, CString& text) const { return GetDlgItemTextW(id, text); }

 protected:
  // ---- Dispatch, from the outside in

  virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
  // FALSE when no handler answers; WindowProc then calls DefWindowProc.
  virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
  virtual LRESULT DefWindowProcW(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT DefWindowProcA(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcW(message, wParam, lParam);
  }
  virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
  virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
  // In a control: a message that its parent got about it. TRUE: handled.
  virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
  virtual void DoDataExchange(CDataExchange*) {}
  // Called after the window was destroyed, with the object empty; an object created with new may
  // delete itself here.
  virtual void PostNcDestroy() {}

  // ---- Default handlers, which a derived class may name in its map

  afx_msg int OnCreate(CREATESTRUCTW*) { return static_cast<int>(Default()); }
  afx_msg void OnDestroy() { Default(); }
  afx_msg void OnNcDestroy() { Default(); }
  afx_msg void OnClose() { Default(); }
  afx_msg void OnPaint() { Default(); }
  afx_msg BOOL OnEraseBkgnd(CDC*) { return static_cast<BOOL>(Default()); }
  afx_msg void OnSize(UINT, int, int) { Default(); }
  afx_msg void OnMove(int, int) { Default(); }
  afx_msg void OnShowWindow(BOOL, UINT) { Default(); }
  afx_msg void OnEnable(BOOL) { Default(); }
  afx_msg void OnActivate(UINT, CWnd*, BOOL) { Default(); }
  afx_msg void OnSetFocus(CWnd*) { Default(); }
  afx_msg void OnKillFocus(CWnd*) { Default(); }
  afx_msg void OnTimer(UINT_PTR) { Default(); }
  afx_msg void OnKeyDown(UINT, UINT, UINT) { Default(); }
  afx_msg void OnKeyUp(UINT, UINT, UINT) { Default(); }
  afx_msg void OnChar(UINT, UINT, UINT) { Default(); }
  afx_msg UINT OnGetDlgCode() { return static_cast<UINT>(Default()); }
  afx_msg void OnLButtonDown(UINT, CPoint) { Default(); }
  afx_msg void OnLButtonUp(UINT, CPoint) { Default(); }
  afx_msg void OnLButtonDblClk(UINT, CPoint) { Default(); }
  afx_msg void OnRButtonDown(UINT, CPoint) { Default(); }
  afx_msg void OnRButtonUp(UINT, CPoint) { Default(); }
  afx_msg void OnRButtonDblClk(UINT, CPoint) { Default(); }
  afx_msg void OnMButtonDown(UINT, CPoint) { Default(); }
  afx_msg void OnMButtonUp(UINT, CPoint) { Default(); }
  afx_msg void OnMouseMove(UINT, CPoint) { Default(); }
  afx_msg BOOL OnMouseWheel(UINT, short, CPoint) { return static_cast<BOOL>(Default()); }
  afx_msg BOOL OnSetCursor(CWnd*, UINT, UINT) { return static_cast<BOOL>(Default()); }
  afx_msg void OnCaptureChanged(CWnd*) { Default(); }
  afx_msg void OnCancelMode() { Default(); }
  afx_msg void OnContextMenu(CWnd*, CPoint) { Default(); }
  afx_msg void OnSysCommand(UINT, LPARAM) { Default(); }
  afx_msg void OnGetMinMaxInfo(MINMAXINFO*) { Default(); }
  afx_msg void OnHScroll(UINT, UINT, CScrollBar*) { Default(); }
  afx_msg void OnVScroll(UINT, UINT, CScrollBar*) { Default(); }
  afx_msg void OnInitMenuPopup(CMenu*, UINT, BOOL) { Default(); }
  // These three offer the message to the control first (reflection).
  afx_msg void OnDrawItem(int id, DRAWITEMSTRUCT* item);
  afx_msg void OnMeasureItem(int id, MEASUREITEMSTRUCT* item);
  afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type);

  // The window procedure before subclassing; null for the framework's own classes.
  WNDPROC m_pfnSuper = nullptr;

  DECLARE_MESSAGE_MAP()

 private:
  friend class CWindowBinding;
  explicit CWnd(HWND special) : m_hWnd(special) {}  // for wndTop and similar
};

// Calls PreTranslateMessage of a message's window and of its parents that have an object, or
// CWinApp's when there is an application. To be called before the message is dispatched. TRUE: do
// not dispatch it.
AFX_FRAMEWORK BOOL AfxPreTranslateMessage(MSG* message);

// The name of a window class of the framework, registered once for each combination of arguments.
// Cursor, brush and icon may be null. The name is valid until the process ends. Throws a
// CResourceException on failure.
AFX_FRAMEWORK LPCWSTR AfxRegisterWndClass(UINT classStyle, HCURSOR cursor = nullptr,
                                          HBRUSH background = nullptr, HICON icon = nullptr);
// Registers a class; TRUE also when the module has registered it already.
AFX_FRAMEWORK BOOL AfxRegisterClass(WNDCLASSW* windowClass);
// The window procedure of the framework's classes.
AFX_FRAMEWORK LRESULT CALLBACK AfxWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
