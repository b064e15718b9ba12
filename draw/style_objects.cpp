#include "draw/style_objects.h"

#include "draw/label_font.h"
#include "draw/point_mark.h"

namespace tavix {

void StyleObjects::UseForLines(const LegendStyle& style) {
  Drop();
  SelectPen(style);
}

void StyleObjects::UseForPoints(const LegendStyle& style) {
  Drop();
  SelectPen(style);
  if (style.kind >= kFirstFilledMark) {
    brush_.CreateSolidBrush(static_cast<COLORREF>(style.color));
    old_brush_ = dc_.SelectObject(&brush_);
  }
  if (style.prm2 > 0) {
    const LOGFONTW font = LabelFont(style.prm2);
    font_.CreateFontIndirect(&font);
    old_font_ = dc_.SelectObject(&font_);
  }
}

void StyleObjects::SelectPen(const LegendStyle& style) {
  LOGPEN pen{PS_SOLID, {style.width, style.width}, static_cast<COLORREF>(style.color)};
  pen_.CreatePenIndirect(&pen);
  old_pen_ = dc_.SelectObject(&pen_);
}

void StyleObjects::Drop() {
  if (old_pen_) dc_.SelectObject(old_pen_);
  if (old_brush_) dc_.SelectObject(old_brush_);
  if (old_font_) dc_.SelectObject(old_font_);
  old_pen_ = nullptr;
  old_brush_ = nullptr;
  old_font_ = nullptr;
  pen_.DeleteObject();
  brush_.DeleteObject();
  font_.DeleteObject();
}

}  // namespace tavix
