#include "window/overlays/rubber_band.h"

#include "draw/gdi_scopes.h"
#include "window/client_surface.h"

namespace tavix {
namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);

POINT ToPoint(ScreenPoint at) { return {at.x, at.y}; }

}  // namespace

void RubberBand::Begin(CWnd& window, ScreenPoint at) {
  Erase(window);
  outline_.fill(ToPoint(at));
}

void RubberBand::MoveTo(CWnd& window, const std::array<ScreenPoint, 3>& corners) {
  Erase(window);
  for (std::size_t i = 0; i < corners.size(); ++i) outline_[i + 1] = ToPoint(corners[i]);
  if (corners[1] == FirstCorner()) return;
  Flip(window);
  shown_ = true;
}

void RubberBand::Erase(CWnd& window) {
  if (shown_) Flip(window);
  shown_ = false;
}

void RubberBand::Restore(CDC& paint) const {
  if (shown_) FlipOn(paint);
}

void RubberBand::Flip(CWnd& window) const {
  ClientSurface screen(window);
  FlipOn(screen.Dc());
}

void RubberBand::FlipOn(CDC& dc) const {
  const XorDrawing drawing(dc, PS_DASH, 1, kRed);
  dc.Polyline(outline_.data(), static_cast<int>(outline_.size()));
}

}  // namespace tavix
