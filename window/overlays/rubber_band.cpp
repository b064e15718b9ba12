#include "window/overlays/rubber_band.h"

#include "draw/gdi_scopes.h"
#include "window/output.h"

namespace tavix {
namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);

POINT ToPoint(ScreenPoint at) { return {at.x, at.y}; }

}  // namespace

void RubberBand::Begin(ScreenPoint at) {
  Erase();
  outline_.fill(ToPoint(at));
}

void RubberBand::MoveTo(const std::array<ScreenPoint, 3>& corners) {
  Erase();
  for (std::size_t i = 0; i < corners.size(); ++i) outline_[i + 1] = ToPoint(corners[i]);
  if (corners[1] == FirstCorner()) return;
  shown_ = true;
  Flip();
}

void RubberBand::Erase() {
  Flip();
  shown_ = false;
}

void RubberBand::PutBack(CDC& paint) {
  if (shown_) FlipOn(paint);
}

void RubberBand::Flip() const {
  if (!shown_) return;
  DrawWhatCanBe([&] {
    ClientSurface screen(window_);
    FlipOn(screen.Dc());
  });
}

void RubberBand::FlipOn(CDC& dc) const {
  const XorDrawing drawing(dc, PS_DASH, 1, kRed);
  dc.Polyline(outline_.data(), static_cast<int>(outline_.size()));
}

}  // namespace tavix
