#include "framework/window_dc.h"

#include "framework/exception.h"
#include "framework/wnd.h"

// The context goes back to the system as it came; ~CDC then finds nothing to delete.

CClientDC::CClientDC(CWnd* window) : m_hWnd(window ? window->m_hWnd : nullptr) {
  if (!Attach(::GetDC(m_hWnd))) AfxThrowResourceException();
}

CClientDC::~CClientDC() { ::ReleaseDC(m_hWnd, Detach()); }

CWindowDC::CWindowDC(CWnd* window) : m_hWnd(window ? window->m_hWnd : nullptr) {
  if (!Attach(::GetWindowDC(m_hWnd))) AfxThrowResourceException();
}

CWindowDC::~CWindowDC() { ::ReleaseDC(m_hWnd, Detach()); }

CPaintDC::CPaintDC(CWnd* window) : m_hWnd(window->m_hWnd) {
  if (!Attach(::BeginPaint(m_hWnd, &m_ps))) AfxThrowResourceException();
}

CPaintDC::~CPaintDC() {
  Detach();
  ::EndPaint(m_hWnd, &m_ps);
}
