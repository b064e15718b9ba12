// CScrollBar: a scroll-bar control.
#pragma once

#include "framework/wnd.h"

class AFX_FRAMEWORK CScrollBar : public CWnd {
 public:
  BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(L"SCROLLBAR", nullptr, style, rect, parent, id);
  }
  // Null for a null handle, as the bar of a window's own frame has.
  static CScrollBar* FromHandle(HWND window);

  int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
  int SetScrollPos(int position, BOOL redraw = TRUE) {
    return ::SetScrollPos(m_hWnd, SB_CTL, position, redraw);
  }
  void SetScrollRange(int smallest, int largest, BOOL redraw = TRUE) {
    ::SetScrollRange(m_hWnd, SB_CTL, smallest, largest, redraw);
  }
};
