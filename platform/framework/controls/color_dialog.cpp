#include "framework/common_dialogs.h"
#include "framework/win_app.h"

HWND CCommonDialog::OwnerWindow() const {
  const CWnd* owner = m_parent ? m_parent : AfxGetMainWnd();
  return owner ? owner->m_hWnd : nullptr;
}

CColorDialog::CColorDialog(COLORREF initial, DWORD flags, CWnd* parent) : CCommonDialog(parent) {
  m_cc.lStructSize = sizeof(m_cc);
  m_cc.rgbResult = initial;
  m_cc.Flags = flags | (initial ? CC_RGBINIT : 0);
  m_cc.lpCustColors = GetSavedCustomColors();
}

INT_PTR CColorDialog::DoModal() {
  m_cc.hwndOwner = OwnerWindow();
  return ::ChooseColorW(&m_cc) ? IDOK : IDCANCEL;
}

void CColorDialog::SetCurrentColor(COLORREF colour) {
  m_cc.rgbResult = colour;
  m_cc.Flags |= CC_RGBINIT;
}

COLORREF* CColorDialog::GetSavedCustomColors() {
  static COLORREF colours[16] = {0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF,
                                 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF,
                                 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF};
  return colours;
}
