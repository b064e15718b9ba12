#include "framework/button.h"
#include "framework/dc.h"
#include "framework/scoped_select.h"

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

namespace {

bool IsLoaded(const CBitmap& bitmap) { return bitmap.GetSafeHandle() != nullptr; }

}  // namespace

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
