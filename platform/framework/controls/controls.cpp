// The members of the controls that are more than one message. A class whose members are all inline
// is exported because it is included here.

#include "framework/controls.h"
#include "framework/dc.h"
#include "framework/scoped_select.h"
#include "framework/spin_button.h"
#include "platform/framework/gdi/handle_map.h"
#include "platform/framework/window/wnd_binding.h"

namespace {

bool IsLoaded(const CBitmap& bitmap) { return bitmap.GetSafeHandle() != nullptr; }

// The text of an item of a combo or list box, by the control's messages for an item's length and
// its text. Empty when there is no such item.
void GetItemText(const CWnd& control, UINT lengthMessage, UINT textMessage, int index,
                 CString& text) {
  const auto item = static_cast<WPARAM>(index);
  const auto length = static_cast<int>(control.SendMessageW(lengthMessage, item));
  text.Empty();
  if (length < 0) return;
  control.SendMessageW(textMessage, item,
                       reinterpret_cast<LPARAM>(text.GetBufferSetLength(length)));
  text.ReleaseBuffer();
}

}  // namespace

// ---- Buttons

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
  if (message != WM_DRAWITEM) return CWnd::OnChildNotify(message, wParam, lParam, result);
  DrawItem(reinterpret_cast<DRAWITEMSTRUCT*>(lParam));
  return TRUE;
}

BOOL CBitmapButton::LoadBitmaps(LPCWSTR up, LPCWSTR selected, LPCWSTR focused, LPCWSTR disabled) {
  m_bitmap.DeleteObject();
  m_bitmapSel.DeleteObject();
  m_bitmapFocus.DeleteObject();
  m_bitmapDisabled.DeleteObject();
  return m_bitmap.LoadBitmapW(up) && (!selected || m_bitmapSel.LoadBitmapW(selected)) &&
         (!focused || m_bitmapFocus.LoadBitmapW(focused)) &&
         (!disabled || m_bitmapDisabled.LoadBitmapW(disabled));
}

BOOL CBitmapButton::LoadBitmaps(UINT up, UINT selected, UINT focused, UINT disabled) {
  return LoadBitmaps(MAKEINTRESOURCEW(up), MAKEINTRESOURCEW(selected), MAKEINTRESOURCEW(focused),
                     MAKEINTRESOURCEW(disabled));
}

BOOL CBitmapButton::AutoLoad(UINT id, CWnd* parent) {
  if (!SubclassDlgItem(id, parent)) return FALSE;
  CString name;
  GetWindowTextW(name);
  const auto load = [&name](CBitmap& bitmap, LPCWSTR state) {
    bitmap.DeleteObject();
    return bitmap.LoadBitmapW(name + state);
  };
  if (!load(m_bitmap, L"U")) return FALSE;
  load(m_bitmapSel, L"D");
  load(m_bitmapFocus, L"F");
  load(m_bitmapDisabled, L"X");
  SizeToContent();
  return TRUE;
}

void CBitmapButton::SizeToContent() {
  BITMAP bitmap;
  if (!m_bitmap.GetBitmap(&bitmap)) return;
  SetWindowPos(nullptr, 0, 0, bitmap.bmWidth, bitmap.bmHeight,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE);
}

void CBitmapButton::DrawItem(DRAWITEMSTRUCT* item) {
  const UINT state = item->itemState;
  const CBitmap* shown = &m_bitmap;
  if ((state & ODS_SELECTED) && IsLoaded(m_bitmapSel)) {
    shown = &m_bitmapSel;
  } else if ((state & ODS_FOCUS) && IsLoaded(m_bitmapFocus)) {
    shown = &m_bitmapFocus;
  } else if ((state & ODS_DISABLED) && IsLoaded(m_bitmapDisabled)) {
    shown = &m_bitmapDisabled;
  }
  if (!IsLoaded(*shown)) return;

  CDC* target = CDC::FromHandle(item->hDC);
  CDC source;
  if (!source.CreateCompatibleDC(target)) return;
  const CScopedSelect bitmap(source, *shown);
  const RECT& place = item->rcItem;
  target->BitBlt(place.left, place.top, place.right - place.left, place.bottom - place.top, &source,
                 0, 0, SRCCOPY);
}

// ---- Edits and lists

void CEdit::GetSel(int& start, int& end) const {
  SendMessageW(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
}

void CEdit::SetSel(int start, int end, BOOL noScroll) {
  SendMessageW(EM_SETSEL, static_cast<WPARAM>(start), end);
  if (!noScroll) SendMessageW(EM_SCROLLCARET);
}

void CComboBox::GetLBText(int index, CString& text) const {
  GetItemText(*this, CB_GETLBTEXTLEN, CB_GETLBTEXT, index, text);
}

void CListBox::GetText(int index, CString& text) const {
  GetItemText(*this, LB_GETTEXTLEN, LB_GETTEXT, index, text);
}

// ---- Scroll bars and spin buttons

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
