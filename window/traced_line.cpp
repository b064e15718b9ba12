#include "window/traced_line.h"

#include "draw/xor_drawing.h"
#include "window/client_surface.h"

namespace tavix {
namespace {

constexpr COLORREF kCyan = RGB(0, 255, 255);

void FlipOn(CDC& dc, std::span<const ScreenSegment> segments) {
  const XorDrawing drawing(dc, PS_SOLID, 1, kCyan);
  for (const ScreenSegment& segment : segments) {
    dc.MoveTo(segment.start.x, segment.start.y);
    dc.LineTo(segment.end.x, segment.end.y);
  }
}

}  // namespace

void TracedLine::Add(const Surfaces& surfaces, const CViewState& view, GroundPoint vertex) {
  ScreenSegment segment;
  if (!vertices_.empty() && view.ClipGroundSegment(vertices_.back(), vertex, segment)) {
    Flip(surfaces, {&segment, 1});
    segments_.push_back(segment);
  }
  vertices_.push_back(vertex);
}

bool TracedLine::RemoveLast(const Surfaces& surfaces, const CViewState& view) {
  if (vertices_.empty()) return false;
  const GroundPoint removed = vertices_.back();
  vertices_.pop_back();
  ScreenSegment ignored;
  if (!vertices_.empty() && !segments_.empty() &&
      view.ClipGroundSegment(vertices_.back(), removed, ignored)) {
    Flip(surfaces, {&segments_.back(), 1});
    segments_.pop_back();
  }
  return true;
}

void TracedLine::End(const Surfaces& surfaces) {
  Flip(surfaces, segments_);
  segments_.clear();
  vertices_.clear();
}

void TracedLine::Redraw(CDC& buffer, const CViewState& view) {
  segments_.clear();
  for (std::size_t i = 1; i < vertices_.size(); ++i) {
    ScreenSegment segment;
    if (view.ClipGroundSegment(vertices_[i - 1], vertices_[i], segment)) {
      segments_.push_back(segment);
    }
  }
  FlipOn(buffer, segments_);
}

void TracedLine::Flip(const Surfaces& surfaces, std::span<const ScreenSegment> segments) {
  if (segments.empty() || !surfaces.window.m_hWnd) return;
  {
    ClientSurface screen(surfaces.window);
    FlipOn(screen.Dc(), segments);
  }
  FlipOn(surfaces.buffer, segments);
}

}  // namespace tavix
