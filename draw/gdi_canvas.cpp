#include "draw/gdi_canvas.h"

#include "draw/marks.h"
#include "draw/point_label.h"
#include "platform/wide_text.h"

namespace tavix {

ScreenBox GdiCanvas::Visible() const {
  CRect box(0, 0, 0, 0);
  dc_.GetClipBox(&box);
  return {static_cast<int>(box.left), static_cast<int>(box.top), static_cast<int>(box.right),
          static_cast<int>(box.bottom)};
}

void GdiCanvas::UseLineStyle(const LegendStyle& style) { objects_.UseForLines(style); }

void GdiCanvas::Line(const ScreenSegment& segment) {
  dc_.MoveTo(segment.start.x, segment.start.y);
  dc_.LineTo(segment.end.x, segment.end.y);
}

// Compatibility: the bottom right corner comes first; GDI normalises the rectangle.
void GdiCanvas::Circle(ScreenPoint centre, int radius) {
  dc_.Ellipse(centre.x + radius, centre.y + radius, centre.x - radius, centre.y - radius);
}

void GdiCanvas::UsePointStyle(const LegendStyle& style) {
  style_ = style;
  objects_.UseForPoints(style);
}

void GdiCanvas::Mark(ScreenPoint at) { DrawMark(dc_, style_.kind, style_.prm1, at); }

void GdiCanvas::Label(ScreenPoint at, NameView text) {
  const int length = static_cast<int>(text.size());
  const LabelBox box = PlaceLabel(at, style_.prm1, style_.prm2, length);
  RECT rect{box.left, box.top, box.right, box.bottom};
  dc_.DrawText(AsWide(text.data()), length, &rect, DT_NOCLIP);
}

}  // namespace tavix
