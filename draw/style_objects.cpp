#include "draw/style_objects.h"

#include "draw/label_font.h"
#include "draw/marks.h"

namespace tavix {

void StyleObjects::UseForLines(const LegendStyle& style) {
  DropPenAndBrush();
  SelectPen(style);
}

void StyleObjects::UseForPoints(const LegendStyle& style) {
  DropPenAndBrush();
  SelectPen(style);
  const MarkShape* mark = FindMark(style.kind);
  if (mark && mark->is_filled) {
    brush_.CreateSolidBrush(static_cast<COLORREF>(style.color));
    old_brush_ = dc_.SelectObject(&brush_);
  }
  if (style.prm2 > 0 && style.prm2 != font_height_) SelectFont(style.prm2);
}

void StyleObjects::SelectPen(const LegendStyle& style) {
  LOGPEN pen{PS_SOLID, {style.width, style.width}, static_cast<COLORREF>(style.color)};
  pen_.CreatePenIndirect(&pen);
  old_pen_ = dc_.SelectObject(&pen_);
}

void StyleObjects::SelectFont(int height) {
  DropFont();
  const LOGFONTW font = LabelFont(height);
  font_.CreateFontIndirect(&font);
  old_font_ = dc_.SelectObject(&font_);
  font_height_ = height;
}

void StyleObjects::DropPenAndBrush() {
  if (old_pen_) dc_.SelectObject(old_pen_);
  if (old_brush_) dc_.SelectObject(old_brush_);
  old_pen_ = nullptr;
  old_brush_ = nullptr;
  pen_.DeleteObject();
  brush_.DeleteObject();
}

void StyleObjects::DropFont() {
  if (old_font_) dc_.SelectObject(old_font_);
  old_font_ = nullptr;
  font_.DeleteObject();
  font_height_ = 0;
}

}  // namespace tavix
