#include "draw/gdi_canvas.h"

#include "draw/labels.h"
#include "draw/marks.h"
#include "platform/wide_text.h"

namespace tavix {

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
