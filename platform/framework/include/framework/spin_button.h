// CSpinButtonCtrl: an up-down control, usually with an edit as its buddy.
#pragma once

#include "wnd.h"

#include <commctrl.h>

class AFX_FRAMEWORK CSpinButtonCtrl : public CWnd {
 public:
  virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

  // Limits -32768..32767; with `lower` above `upper` the arrows count in the other direction.
  void SetRange(short lower, short upper) {
    SendMessageW(UDM_SETRANGE, 0, MAKELPARAM(upper, lower));
  }
  void SetRange32(int lower, int upper) {
    SendMessageW(UDM_SETRANGE32, static_cast<WPARAM>(lower), upper);
  }
  DWORD GetRange() const { return static_cast<DWORD>(SendMessageW(UDM_GETRANGE)); }
  void GetRange(int& lower, int& upper) const;
  // Returns the previous position.
  int SetPos(int position) {
    return static_cast<int>(SendMessageW(UDM_SETPOS, 0, MAKELPARAM(position, 0)));
  }
  // The position in the low word; the high word is not 0 when the buddy's text is not a number in
  // the range.
  int GetPos() const { return static_cast<int>(SendMessageW(UDM_GETPOS)); }
  int SetPos32(int position) { return static_cast<int>(SendMessageW(UDM_SETPOS32, 0, position)); }
  int GetPos32(BOOL* error = nullptr) const {
    return static_cast<int>(SendMessageW(UDM_GETPOS32, 0, reinterpret_cast<LPARAM>(error)));
  }
  // 10 or 16; returns the previous base.
  int SetBase(int base) {
    return static_cast<int>(SendMessageW(UDM_SETBASE, static_cast<WPARAM>(base)));
  }
  UINT GetBase() const { return static_cast<UINT>(SendMessageW(UDM_GETBASE)); }
  // Returns the previous buddy.
  CWnd* SetBuddy(CWnd* buddy);
  CWnd* GetBuddy() const;
};
