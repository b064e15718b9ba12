// CStatic: a text, icon or bitmap that takes no input.
#pragma once

#include "framework/wnd.h"

class AFX_FRAMEWORK CStatic : public CWnd {
 public:
  virtual BOOL Create(LPCWSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0xFFFF) {
    return CWnd::Create(L"STATIC", text, style, rect, parent, id);
  }

  // The caller keeps the bitmap or icon, which must outlive its being shown. The old one returns.
  HBITMAP SetBitmap(HBITMAP bitmap) {
    return reinterpret_cast<HBITMAP>(
        SendMessageW(STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap)));
  }
  HICON SetIcon(HICON icon) {
    return reinterpret_cast<HICON>(SendMessageW(STM_SETICON, reinterpret_cast<WPARAM>(icon)));
  }
};
