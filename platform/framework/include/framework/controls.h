// The standard controls: CButton, CBitmapButton, CStatic, CEdit, CComboBox, CListBox, CScrollBar.
// Most members send one message to the control.
#pragma once

#include "gdi_objects.h"
#include "string.h"
#include "wnd.h"

class AFX_FRAMEWORK CButton : public CWnd {
 public:
  virtual BOOL Create(LPCWSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(L"BUTTON", caption, style, rect, parent, id);
  }

  UINT GetState() const { return static_cast<UINT>(SendMessageW(BM_GETSTATE)); }
  void SetState(BOOL pressed) { SendMessageW(BM_SETSTATE, static_cast<WPARAM>(pressed)); }
  int GetCheck() const { return static_cast<int>(SendMessageW(BM_GETCHECK)); }
  void SetCheck(int check) { SendMessageW(BM_SETCHECK, static_cast<WPARAM>(check)); }
  UINT GetButtonStyle() const { return GetStyle() & BS_TYPEMASK; }
  void SetButtonStyle(UINT style, BOOL redraw = TRUE) {
    SendMessageW(BM_SETSTYLE, style, static_cast<LPARAM>(redraw));
  }

  // Draws an owner-drawn button (BS_OWNERDRAW); called for the parent's WM_DRAWITEM.
  virtual void DrawItem(DRAWITEMSTRUCT*) {}

 protected:
  BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};

// A button with a bitmap for each state. The style given to Create must include BS_OWNERDRAW.
class AFX_FRAMEWORK CBitmapButton : public CButton {
 public:
  // By name or number from the resources (AfxFindResourceHandle); null or 0 for a state without a
  // bitmap. FALSE when a bitmap is missing; the ones before it stay loaded.
  BOOL LoadBitmaps(LPCWSTR up, LPCWSTR selected = nullptr, LPCWSTR focused = nullptr,
                   LPCWSTR disabled = nullptr);
  BOOL LoadBitmaps(UINT up, UINT selected = 0, UINT focused = 0, UINT disabled = 0);
  // Subclasses the control `id` of `parent` and loads the bitmaps whose names are its caption with
  // U, D, F and X appended; only the first is required. Then SizeToContent.
  BOOL AutoLoad(UINT id, CWnd* parent);
  // Gives the button the size of its first bitmap.
  void SizeToContent();

  // Shows the first of these states that applies and has a bitmap: selected (pressed), focused,
  // disabled; otherwise the first bitmap.
  void DrawItem(DRAWITEMSTRUCT* item) override;

 protected:
  CBitmap m_bitmap;
  CBitmap m_bitmapSel;
  CBitmap m_bitmapFocus;
  CBitmap m_bitmapDisabled;
};

// A text, icon or bitmap that takes no input.
class AFX_FRAMEWORK CStatic : public CWnd {
 public:
  virtual BOOL Create(LPCWSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0xFFFF) {
    return CWnd::Create(L"STATIC", text, style, rect, parent, id);
  }

  // The caller owns the bitmap or icon and keeps it while it is shown. Returns the previous one.
  HBITMAP SetBitmap(HBITMAP bitmap) {
    return reinterpret_cast<HBITMAP>(
        SendMessageW(STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap)));
  }
  HICON SetIcon(HICON icon) {
    return reinterpret_cast<HICON>(SendMessageW(STM_SETICON, reinterpret_cast<WPARAM>(icon)));
  }
};

class AFX_FRAMEWORK CEdit : public CWnd {
 public:
  virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(L"EDIT", nullptr, style, rect, parent, id);
  }

  // Positions count characters from 0; 0 and -1 select all.
  void GetSel(int& start, int& end) const;
  DWORD GetSel() const { return static_cast<DWORD>(SendMessageW(EM_GETSEL)); }
  void SetSel(int start, int end, BOOL noScroll = FALSE);
  void SetSel(DWORD selection, BOOL noScroll = FALSE) {
    SetSel(LOWORD(selection), HIWORD(selection), noScroll);
  }
  void ReplaceSel(LPCWSTR text, BOOL canUndo = FALSE) {
    SendMessageW(EM_REPLACESEL, static_cast<WPARAM>(canUndo), reinterpret_cast<LPARAM>(text));
  }
  // The length of the longest text that can be entered; 0 is the system's maximum.
  void LimitText(int count = 0) { SendMessageW(EM_LIMITTEXT, static_cast<WPARAM>(count)); }
  void SetLimitText(UINT count) { SendMessageW(EM_SETLIMITTEXT, count); }
  UINT GetLimitText() const { return static_cast<UINT>(SendMessageW(EM_GETLIMITTEXT)); }
  BOOL GetModify() const { return static_cast<BOOL>(SendMessageW(EM_GETMODIFY)); }
  void SetModify(BOOL modified = TRUE) {
    SendMessageW(EM_SETMODIFY, static_cast<WPARAM>(modified));
  }
  BOOL SetReadOnly(BOOL readOnly = TRUE) {
    return static_cast<BOOL>(SendMessageW(EM_SETREADONLY, static_cast<WPARAM>(readOnly)));
  }
  void SetPasswordChar(WCHAR character) { SendMessageW(EM_SETPASSWORDCHAR, character); }
  int GetLineCount() const { return static_cast<int>(SendMessageW(EM_GETLINECOUNT)); }
  BOOL CanUndo() const { return static_cast<BOOL>(SendMessageW(EM_CANUNDO)); }
  BOOL Undo() { return static_cast<BOOL>(SendMessageW(EM_UNDO)); }
  void Cut() { SendMessageW(WM_CUT); }
  void Copy() { SendMessageW(WM_COPY); }
  void Paste() { SendMessageW(WM_PASTE); }
  void Clear() { SendMessageW(WM_CLEAR); }
};

// Indexes of combo and list boxes count from 0. CB_ERR or LB_ERR (-1): no such item; CB_ERRSPACE or
// LB_ERRSPACE (-2): out of memory.
class AFX_FRAMEWORK CComboBox : public CWnd {
 public:
  virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(L"COMBOBOX", nullptr, style, rect, parent, id);
  }

  int GetCount() const { return Send(CB_GETCOUNT); }
  int GetCurSel() const { return Send(CB_GETCURSEL); }
  // -1 selects nothing; the result is then -1 too.
  int SetCurSel(int index) { return Send(CB_SETCURSEL, index); }
  int GetTopIndex() const { return Send(CB_GETTOPINDEX); }
  int GetLBText(int index, LPWSTR text) const { return Send(CB_GETLBTEXT, index, text); }
  void GetLBText(int index, CString& text) const;  // empty when there is no such item
  int GetLBTextLen(int index) const { return Send(CB_GETLBTEXTLEN, index); }
  int SetItemData(int index, DWORD_PTR data) {
    return static_cast<int>(
        SendMessageW(CB_SETITEMDATA, static_cast<WPARAM>(index), static_cast<LPARAM>(data)));
  }
  DWORD_PTR GetItemData(int index) const {
    return static_cast<DWORD_PTR>(SendMessageW(CB_GETITEMDATA, static_cast<WPARAM>(index)));
  }
  int SetItemDataPtr(int index, void* data) {
    return SetItemData(index, reinterpret_cast<DWORD_PTR>(data));
  }
  void* GetItemDataPtr(int index) const { return reinterpret_cast<void*>(GetItemData(index)); }
  BOOL LimitText(int count) { return Send(CB_LIMITTEXT, count); }
  BOOL GetDroppedState() const { return Send(CB_GETDROPPEDSTATE); }
  void ShowDropDown(BOOL show = TRUE) { Send(CB_SHOWDROPDOWN, show); }
  int SetItemHeight(int index, UINT pixels) {
    return static_cast<int>(SendMessageW(CB_SETITEMHEIGHT, static_cast<WPARAM>(index), pixels));
  }
  int SetDroppedWidth(UINT pixels) {
    return static_cast<int>(SendMessageW(CB_SETDROPPEDWIDTH, pixels));
  }

  int AddString(LPCWSTR text) { return Send(CB_ADDSTRING, 0, text); }
  int InsertString(int index, LPCWSTR text) { return Send(CB_INSERTSTRING, index, text); }
  int DeleteString(UINT index) { return Send(CB_DELETESTRING, static_cast<int>(index)); }
  void ResetContent() { Send(CB_RESETCONTENT); }
  // Searches from the item after startAfter (-1: from the start) and wraps around, ignoring case.
  int FindString(int startAfter, LPCWSTR prefix) const {
    return Send(CB_FINDSTRING, startAfter, prefix);
  }
  int FindStringExact(int startAfter, LPCWSTR text) const {
    return Send(CB_FINDSTRINGEXACT, startAfter, text);
  }
  int SelectString(int startAfter, LPCWSTR prefix) {
    return Send(CB_SELECTSTRING, startAfter, prefix);
  }

 private:
  int Send(UINT message, int index = 0, LPCWSTR text = nullptr) const {
    return static_cast<int>(
        SendMessageW(message, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
  }
};

// Single selection.
class AFX_FRAMEWORK CListBox : public CWnd {
 public:
  virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(L"LISTBOX", nullptr, style, rect, parent, id);
  }

  int GetCount() const { return Send(LB_GETCOUNT); }
  int GetCurSel() const { return Send(LB_GETCURSEL); }
  int SetCurSel(int index) { return Send(LB_SETCURSEL, index); }
  int GetTopIndex() const { return Send(LB_GETTOPINDEX); }
  int SetTopIndex(int index) { return Send(LB_SETTOPINDEX, index); }
  int GetText(int index, LPWSTR text) const { return Send(LB_GETTEXT, index, text); }
  void GetText(int index, CString& text) const;  // empty when there is no such item
  int GetTextLen(int index) const { return Send(LB_GETTEXTLEN, index); }
  int SetItemData(int index, DWORD_PTR data) {
    return static_cast<int>(
        SendMessageW(LB_SETITEMDATA, static_cast<WPARAM>(index), static_cast<LPARAM>(data)));
  }
  DWORD_PTR GetItemData(int index) const {
    return static_cast<DWORD_PTR>(SendMessageW(LB_GETITEMDATA, static_cast<WPARAM>(index)));
  }

  int AddString(LPCWSTR text) { return Send(LB_ADDSTRING, 0, text); }
  int InsertString(int index, LPCWSTR text) { return Send(LB_INSERTSTRING, index, text); }
  int DeleteString(UINT index) { return Send(LB_DELETESTRING, static_cast<int>(index)); }
  void ResetContent() { Send(LB_RESETCONTENT); }
  // Searches from the item after startAfter (-1: from the start) and around; case does not count.
  int FindString(int startAfter, LPCWSTR prefix) const {
    return Send(LB_FINDSTRING, startAfter, prefix);
  }
  int FindStringExact(int startAfter, LPCWSTR text) const {
    return Send(LB_FINDSTRINGEXACT, startAfter, text);
  }

 private:
  int Send(UINT message, int index = 0, LPCWSTR text = nullptr) const {
    return static_cast<int>(
        SendMessageW(message, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
  }
};

class AFX_FRAMEWORK CScrollBar : public CWnd {
 public:
  BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(L"SCROLLBAR", nullptr, style, rect, parent, id);
  }
  // Null for a null handle, which the message of a window's own scroll bar has.
  static CScrollBar* FromHandle(HWND window);

  int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
  int SetScrollPos(int position, BOOL redraw = TRUE) {
    return ::SetScrollPos(m_hWnd, SB_CTL, position, redraw);
  }
  void SetScrollRange(int smallest, int largest, BOOL redraw = TRUE) {
    ::SetScrollRange(m_hWnd, SB_CTL, smallest, largest, redraw);
  }
};
