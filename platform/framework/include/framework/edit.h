// CEdit: an edit control.
#pragma once

#include "framework/wnd.h"

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
  // The longest text a user can enter; 0 is the system's largest.
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
