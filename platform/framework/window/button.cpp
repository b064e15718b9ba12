#include "framework/button.h"

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
  if (message != WM_DRAWITEM) return CWnd::OnChildNotify(message, wParam, lParam, result);
  DrawItem(reinterpret_cast<DRAWITEMSTRUCT*>(lParam));
  return TRUE;
}
