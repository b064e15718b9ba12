// Device contexts of windows, got on construction and given back on destruction. A null window is
// the whole screen. A constructor that gets no context throws a CResourceException.
#pragma once

#include "framework/dc.h"

class CWnd;

class AFX_FRAMEWORK CClientDC : public CDC {
 public:
  explicit CClientDC(CWnd* window);
  ~CClientDC() override;

 protected:
  HWND m_hWnd;
};

class AFX_FRAMEWORK CWindowDC : public CDC {
 public:
  explicit CWindowDC(CWnd* window);
  ~CWindowDC() override;

 protected:
  HWND m_hWnd;
};

// For WM_PAINT handlers only: BeginPaint and EndPaint.
class AFX_FRAMEWORK CPaintDC : public CDC {
 public:
  PAINTSTRUCT m_ps = {};

  explicit CPaintDC(CWnd* window);
  ~CPaintDC() override;

 protected:
  HWND m_hWnd;
};
