// CListBox, single selection. Indexes count from 0; LB_ERR (-1) says that there is no such item,
// LB_ERRSPACE (-2) that memory ran out.
#pragma once

#include "framework/string.h"
#include "framework/wnd.h"

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
