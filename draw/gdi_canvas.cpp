#include "draw/gdi_canvas.h"

#include "draw/labels.h"
#include "draw/marks.h"
#include "platform/wide_text.h"

namespace tavix {

void GdiSymbol::Use(const Pen& pen, bool is_filled) {
  if (pen_in_use_ == pen && is_filled_ == is_filled) return;
  DropPenAndBrush();
  pen_in_use_ = pen;
  is_filled_ = is_filled;
  LOGPEN logical{PS_SOLID, {pen.width, pen.width}, static_cast<COLORREF>(pen.color)};
  pen_.CreatePenIndirect(&logical);
  old_pen_ = dc_.SelectObject(pen_.m_hObject);
  if (is_filled) {
    brush_.CreateSolidBrush(static_cast<COLORREF>(pen.color));
    old_brush_ = dc_.SelectObject(brush_.m_hObject);
  }
  // What could not be made is asked for again.
  if (!pen_.m_hObject || (is_filled && !brush_.m_hObject)) pen_in_use_.reset();
}

void GdiSymbol::Use(const PointSymbol& symbol) {
  const MarkShape* mark = FindMark(symbol.mark);
  Use(symbol.pen, mark && mark->is_filled);
  if (symbol.label_height > 0 && symbol.label_height != font_height_) {
    SelectFont(symbol.label_height);
  }
}

void GdiSymbol::SelectFont(int height) {
  DropFont();
  const LOGFONTW font = LabelFont(height);
  font_.CreateFontIndirect(&font);
  old_font_ = dc_.SelectObject(font_.m_hObject);
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

ScreenBox GdiCanvas::Visible() const {
  CRect box(0, 0, 0, 0);
  dc_.GetClipBox(&box);
  return {static_cast<int>(box.left), static_cast<int>(box.top), static_cast<int>(box.right),
          static_cast<int>(box.bottom)};
}

void GdiCanvas::Line(const ScreenSegment& segment) {
  dc_.MoveTo(segment.start.x, segment.start.y);
  dc_.LineTo(segment.end.x, segment.end.y);
}

// Compatibility: the bottom right corner comes first; GDI normalises the rectangle.
void GdiCanvas::Circle(ScreenPoint centre, int radius) {
  dc_.Ellipse(centre.x + radius, centre.y + radius, centre.x - radius, centre.y - radius);
}

void GdiCanvas::UsePointSymbol(const PointSymbol& symbol) {
  symbol_ = symbol;
  gdi_.Use(symbol);
}

void GdiCanvas::Mark(ScreenPoint at) { DrawMark(dc_, symbol_.mark, symbol_.size, at); }

void GdiCanvas::Label(ScreenPoint at, NameView text) {
  const int length = static_cast<int>(text.size());
  const LabelBox box = PlaceLabel(at, symbol_, length);
  RECT rect{box.left, box.top, box.right, box.bottom};
  dc_.DrawText(AsWide(text.data()), length, &rect, DT_NOCLIP);
}

}  // namespace tavix
