#include "framework/spin_button.h"

BOOL CSpinButtonCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
  const INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_UPDOWN_CLASS};
  ::InitCommonControlsEx(&controls);
  return CWnd::Create(UPDOWN_CLASSW, nullptr, style, rect, parent, id);
}

void CSpinButtonCtrl::GetRange(int& lower, int& upper) const {
  SendMessageW(UDM_GETRANGE32, reinterpret_cast<WPARAM>(&lower), reinterpret_cast<LPARAM>(&upper));
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* buddy) {
  return FromHandle(
      reinterpret_cast<HWND>(SendMessageW(UDM_SETBUDDY, reinterpret_cast<WPARAM>(buddy->m_hWnd))));
}

CWnd* CSpinButtonCtrl::GetBuddy() const {
  return FromHandle(reinterpret_cast<HWND>(SendMessageW(UDM_GETBUDDY)));
}
