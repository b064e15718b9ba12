#include "window/overlays/moved_point.h"

#include <framework/scoped_select.h>

#include "draw/gdi_scopes.h"
#include "draw/marks.h"
#include "draw/screen.h"
#include "window/output.h"

namespace tavix {

void MovedPoint::Start(const PointSymbol& symbol) {
  End();
  color_ = static_cast<COLORREF>(symbol.pen.color) ^ kWhite;
  pen_width_ = symbol.pen.width;
  mark_ = symbol.mark;
  mark_size_ = symbol.size;
  position_ = {};
}

void MovedPoint::SetAnchor(GroundPoint anchor) {
  anchor_ = anchor;
  has_line_ = true;
}

void MovedPoint::MoveTo(GroundPoint at) {
  Flip();
  drawn_ = true;
  position_ = at;
  on_screen_ = surfaces_.plan_shown;
  Flip();
}

void MovedPoint::End() {
  Hide();
  drawn_ = false;
  has_line_ = false;
}

void MovedPoint::Hide() {
  Flip();
  on_screen_ = false;
}

void MovedPoint::PutBack(CDC& paint) {
  if (!drawn_) return;
  FlipOn(paint);
  on_screen_ = true;
}

void MovedPoint::Flip() const {
  if (!on_screen_ || !surfaces_.window.m_hWnd) return;
  DrawWhatCanBe([&] {
    ClientSurface screen(surfaces_.window);
    FlipOn(screen.Dc());
  });
}

void MovedPoint::FlipOn(CDC& dc) const {
  const CViewState& view = surfaces_.view;
  const XorDrawing drawing(dc, PS_SOLID, pen_width_, color_);
  const CScopedSelect hollow(dc, NULL_BRUSH);
  ScreenPoint at;
  if (mark_size_ > 0 && view.CircleOnScreen(position_, view.PixelsToLength(mark_size_), at)) {
    DrawMark(dc, mark_, mark_size_, at);
  }
  ScreenSegment line;
  if (has_line_ && view.ClipGroundSegment(anchor_, position_, line)) {
    AddDot(line);
    dc.MoveTo(line.start.x, line.start.y);
    dc.LineTo(line.end.x, line.end.y);
  }
}

}  // namespace tavix
