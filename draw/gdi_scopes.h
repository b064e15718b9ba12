// What drawing sets in a device context for a time, and the font of labels.
#pragma once

#include <afxwin.h>
#include <framework/scoped_select.h>

namespace tavix {

// Text without a box behind it. The destructor puts the old background mode back.
class TransparentBackground {
 public:
  explicit TransparentBackground(CDC& dc) : dc_(dc), old_mode_(dc.SetBkMode(TRANSPARENT)) {}
  ~TransparentBackground() { dc_.SetBkMode(old_mode_); }
  TransparentBackground(const TransparentBackground&) = delete;
  TransparentBackground& operator=(const TransparentBackground&) = delete;

 private:
  CDC& dc_;
  int old_mode_;
};

// Drawing by exclusive-or, which a second drawing of the same takes off again. Selects a pen of its
// own; the destructor puts pen and raster operation back.
class XorDrawing {
 public:
  XorDrawing(CDC& dc, int style, int width, COLORREF color)
      : dc_(dc),
        pen_(style, width, color),
        pen_in_use_(dc, pen_),
        old_operation_(dc.SetROP2(R2_XORPEN)) {}
  ~XorDrawing() { dc_.SetROP2(old_operation_); }
  XorDrawing(const XorDrawing&) = delete;
  XorDrawing& operator=(const XorDrawing&) = delete;

 private:
  CDC& dc_;
  CPen pen_;
  CScopedSelect pen_in_use_;
  int old_operation_;
};

// A font of `height` pixels in GDI's default face for Japanese text.
inline LOGFONTW LabelFont(int height) {
  LOGFONTW font{};
  font.lfHeight = height;
  font.lfWeight = FW_NORMAL;
  font.lfCharSet = SHIFTJIS_CHARSET;
  return font;
}

}  // namespace tavix
