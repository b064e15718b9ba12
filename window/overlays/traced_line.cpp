#include "window/overlays/traced_line.h"

#include "draw/gdi_scopes.h"
#include "window/client_surface.h"

namespace tavix {
namespace {

constexpr COLORREF kCyan = RGB(0, 255, 255);

}  // namespace

std::optional<TracedLine::Drawn> TracedLine::SegmentTo(const CViewState& view,
                                                       std::span<const GroundPoint> vertices) {
  if (vertices.size() < 2) return std::nullopt;
  const std::size_t last = vertices.size() - 1;
  Drawn drawn{{}, last};
  if (!view.ClipGroundSegment(vertices[last - 1], vertices[last], drawn.segment)) {
    return std::nullopt;
  }
  return drawn;
}

void TracedLine::Add(const Surfaces& surfaces, const CViewState& view, GroundPoint vertex,
                     bool plan_shown) {
  vertices_.push_back(vertex);
  if (!plan_shown) return;
  if (const auto drawn = SegmentTo(view, vertices_)) {
    Flip(surfaces, {&*drawn, 1});
    segments_.push_back(*drawn);
  }
}

// What was drawn is taken off, whatever the view has become since without a redraw.
bool TracedLine::RemoveLast(const Surfaces& surfaces) {
  if (vertices_.empty()) return false;
  vertices_.pop_back();
  if (!segments_.empty() && segments_.back().end_vertex == vertices_.size()) {
    Flip(surfaces, {&segments_.back(), 1});
    segments_.pop_back();
  }
  return true;
}

void TracedLine::End(const Surfaces& surfaces) {
  Flip(surfaces);
  segments_.clear();
  vertices_.clear();
}

void TracedLine::Redraw(CDC& buffer, const CViewState& view) {
  segments_.clear();
  const std::span<const GroundPoint> vertices(vertices_);
  for (std::size_t count = 2; count <= vertices.size(); ++count) {
    if (const auto drawn = SegmentTo(view, vertices.first(count))) segments_.push_back(*drawn);
  }
  FlipOn(buffer, segments_);
}

void TracedLine::FlipOn(CDC& dc, std::span<const Drawn> segments) {
  const XorDrawing drawing(dc, PS_SOLID, 1, kCyan);
  for (const auto& [segment, end_vertex] : segments) {
    dc.MoveTo(segment.start.x, segment.start.y);
    dc.LineTo(segment.end.x, segment.end.y);
  }
}

void TracedLine::Flip(const Surfaces& surfaces, std::span<const Drawn> segments) {
  if (segments.empty() || !surfaces.window.m_hWnd) return;
  {
    ClientSurface screen(surfaces.window);
    FlipOn(screen.Dc(), segments);
  }
  FlipOn(surfaces.buffer, segments);
}

}  // namespace tavix
