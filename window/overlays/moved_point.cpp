#include "window/overlays/moved_point.h"

#include <framework/scoped_select.h>

#include "draw/gdi_scopes.h"
#include "draw/marks.h"
#include "draw/screen.h"
#include "window/client_surface.h"

namespace tavix {

void MovePoint::Start(CWnd& window, const CViewState& view, const PointSymbol& symbol) {
  End(window, view);
  color_ = static_cast<COLORREF>(symbol.pen.color) ^ kWhite;
  pen_width_ = symbol.pen.width;
  mark_ = symbol.mark;
  mark_size_ = symbol.size;
  position_ = {};
}

void MovePoint::SetAnchor(GroundPoint anchor) {
  anchor_ = anchor;
  has_line_ = true;
}

void MovePoint::MoveTo(CWnd& window, const CViewState& view, GroundPoint at, bool plan_shown) {
  Flip(window, view);
  drawn_ = true;
  position_ = at;
  on_screen_ = plan_shown;
  Flip(window, view);
}

void MovePoint::End(CWnd& window, const CViewState& view) {
  Hide(window, view);
  drawn_ = false;
  has_line_ = false;
}

void MovePoint::Hide(CWnd& window, const CViewState& view) {
  Flip(window, view);
  on_screen_ = false;
}

void MovePoint::Restore(CDC& paint, const CViewState& view) {
  if (!drawn_) return;
  FlipOn(paint, view);
  on_screen_ = true;
}

void MovePoint::Flip(CWnd& window, const CViewState& view) const {
  if (!on_screen_ || !window.m_hWnd) return;
  ClientSurface screen(window);
  FlipOn(screen.Dc(), view);
}

void MovePoint::FlipOn(CDC& dc, const CViewState& view) const {
  const XorDrawing drawing(dc, PS_SOLID, pen_width_, color_);
  const CScopedSelect hollow(dc, NULL_BRUSH);
  ScreenPoint at;
  if (mark_size_ > 0 && view.CircleOnScreen(position_, view.PixelsToLength(mark_size_), at)) {
    DrawMark(dc, mark_, mark_size_, at);
  }
  ScreenSegment line;
  if (has_line_ && view.ClipGroundSegment(anchor_, position_, line)) {
    line = WithDot(line);
    dc.MoveTo(line.start.x, line.start.y);
    dc.LineTo(line.end.x, line.end.y);
  }
}

}  // namespace tavix
