// The members of the controls that are more than one message. Classes whose members are all inline
// are exported by being included here.

#include "framework/button.h"
#include "framework/combo_box.h"
#include "framework/edit.h"
#include "framework/list_box.h"
#include "framework/scroll_bar.h"
#include "framework/spin_button.h"
#include "framework/static_control.h"
#include "platform/framework/gdi/handle_map.h"
#include "platform/framework/window/wnd_binding.h"

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
  if (message != WM_DRAWITEM) return CWnd::OnChildNotify(message, wParam, lParam, result);
  DrawItem(reinterpret_cast<DRAWITEMSTRUCT*>(lParam));
  return TRUE;
}

void CEdit::GetSel(int& start, int& end) const {
  SendMessageW(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
}

void CEdit::SetSel(int start, int end, BOOL noScroll) {
  SendMessageW(EM_SETSEL, static_cast<WPARAM>(start), end);
  if (!noScroll) SendMessageW(EM_SCROLLCARET);
}

void CComboBox::GetLBText(int index, CString& text) const {
  const int length = GetLBTextLen(index);
  if (length == CB_ERR) {
    text.Empty();
    return;
  }
  GetLBText(index, text.GetBufferSetLength(length));
  text.ReleaseBuffer();
}

void CListBox::GetText(int index, CString& text) const {
  const int length = GetTextLen(index);
  if (length == LB_ERR) {
    text.Empty();
    return;
  }
  GetText(index, text.GetBufferSetLength(length));
  text.ReleaseBuffer();
}

CScrollBar* CScrollBar::FromHandle(HWND window) {
  if (!window) return nullptr;
  if (CScrollBar* bar = dynamic_cast<CScrollBar*>(FromHandlePermanent(window))) return bar;
  static auto& temporary =
      *new afx::TemporaryMap<CScrollBar, HWND, &CWnd::m_hWnd, &afx::IsLiveWindow>;
  return temporary.Get(window);
}

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
