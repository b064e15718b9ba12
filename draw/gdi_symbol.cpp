#include "draw/gdi_symbol.h"

#include "draw/gdi_scopes.h"
#include "draw/marks.h"

namespace tavix {

void GdiSymbol::Use(const Pen& pen) {
  DropPenAndBrush();
  LOGPEN logical{PS_SOLID, {pen.width, pen.width}, static_cast<COLORREF>(pen.color)};
  pen_.CreatePenIndirect(&logical);
  old_pen_ = dc_.SelectObject(&pen_);
}

void GdiSymbol::Use(const PointSymbol& symbol) {
  Use(symbol.pen);
  const MarkShape* mark = FindMark(symbol.mark);
  if (mark && mark->is_filled) {
    brush_.CreateSolidBrush(static_cast<COLORREF>(symbol.pen.color));
    old_brush_ = dc_.SelectObject(&brush_);
  }
  if (symbol.label_height > 0 && symbol.label_height != font_height_) {
    SelectFont(symbol.label_height);
  }
}

void GdiSymbol::SelectFont(int height) {
  DropFont();
  const LOGFONTW font = LabelFont(height);
  font_.CreateFontIndirect(&font);
  old_font_ = dc_.SelectObject(&font_);
  font_height_ = height;
}

void GdiSymbol::DropPenAndBrush() {
  if (old_pen_) dc_.SelectObject(old_pen_);
  if (old_brush_) dc_.SelectObject(old_brush_);
  old_pen_ = nullptr;
  old_brush_ = nullptr;
  pen_.DeleteObject();
  brush_.DeleteObject();
}

void GdiSymbol::DropFont() {
  if (old_font_) dc_.SelectObject(old_font_);
  old_font_ = nullptr;
  font_.DeleteObject();
  font_height_ = 0;
}

}  // namespace tavix
