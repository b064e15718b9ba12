// CComboBox. Indexes count from 0; CB_ERR (-1) says that there is no such item, CB_ERRSPACE (-2)
// that memory ran out.
#pragma once

#include "framework/string.h"
#include "framework/wnd.h"

class AFX_FRAMEWORK CComboBox : public CWnd {
 public:
  virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(L"COMBOBOX", nullptr, style, rect, parent, id);
  }

  int GetCount() const { return Send(CB_GETCOUNT); }
  int GetCurSel() const { return Send(CB_GETCURSEL); }
  // -1 selects nothing, which then also is the answer.
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
  // Searches from the item after startAfter (-1: from the start) and around; case does not count.
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
