// CScopedSelect: selects a pen, brush, font or bitmap, and the old one back at the end of its
// scope.
//
//   CScopedSelect pen(dc, m_gridPen);
//
// Both the context and the object must outlive it.
#pragma once

#include "dc.h"

class CScopedSelect {
 public:
  CScopedSelect(CDC& dc, const CGdiObject& object)
      : m_dc(dc), m_previous(::SelectObject(dc.m_hDC, object.m_hObject)) {}
  CScopedSelect(CDC& dc, int stockObject)
      : m_dc(dc), m_previous(::SelectObject(dc.m_hDC, ::GetStockObject(stockObject))) {}
  ~CScopedSelect() {
    if (m_previous) ::SelectObject(m_dc.m_hDC, m_previous);
  }
  CScopedSelect(const CScopedSelect&) = delete;
  CScopedSelect& operator=(const CScopedSelect&) = delete;

 private:
  CDC& m_dc;
  HGDIOBJ m_previous;
};
