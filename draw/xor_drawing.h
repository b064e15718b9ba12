// Drawing that a second drawing takes off again.
#pragma once

#include <afxwin.h>

namespace tavix {

// Selects a pen of its own and the exclusive-or raster operation, and puts both back.
class XorDrawing {
 public:
  XorDrawing(CDC& dc, int style, int width, COLORREF color)
      : dc_(dc),
        pen_(style, width, color),
        old_pen_(dc.SelectObject(&pen_)),
        old_operation_(dc.SetROP2(R2_XORPEN)) {}
  ~XorDrawing() {
    dc_.SetROP2(old_operation_);
    dc_.SelectObject(old_pen_);
  }
  XorDrawing(const XorDrawing&) = delete;
  XorDrawing& operator=(const XorDrawing&) = delete;

 private:
  CDC& dc_;
  CPen pen_;
  CPen* old_pen_;
  int old_operation_;
};

}  // namespace tavix
