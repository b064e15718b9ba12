#include "window/immediate_surfaces.h"

namespace tavix {

void ImmediateSurfaces::Draw(const std::function<void(PlanCanvas&)>& draw) {
  if (window_.IsWindowVisible()) {
    DrawWhatCanBe([&] {
      if (!screen_) screen_.emplace(window_);
      draw(screen_->canvas);
    });
  }
  DrawWhatCanBe([&] { draw(BufferCanvas()); });
}

void ImmediateSurfaces::Release() {
  screen_.reset();
  pixels_.reset();
  buffer_canvas_.reset();
}

PlanCanvas& ImmediateSurfaces::BufferCanvas() {
  if (!buffer_.Pixels().pixels || way_ == DrawingWay::kGdi) {
    if (!buffer_canvas_) buffer_canvas_.emplace(buffer_.Dc());
    return *buffer_canvas_;
  }
  // All windows share the cache: a redraw of another one may have dropped what this canvas uses.
  if (pixels_ && pixels_->IsCurrent()) {
    pixels_->Resume();
  } else {
    pixels_.emplace(buffer_.Dc(), buffer_.Pixels(), RasterCache::OfProcess());
  }
  return *pixels_;
}

}  // namespace tavix
