#include "window/overlays/traced_line.h"

#include "draw/gdi_scopes.h"
#include "window/output.h"

namespace tavix {
namespace {

constexpr COLORREF kCyan = RGB(0, 255, 255);

}  // namespace

std::optional<TracedLine::Drawn> TracedLine::SegmentTo(
    std::span<const GroundPoint> vertices) const {
  if (vertices.size() < 2) return std::nullopt;
  const std::size_t last = vertices.size() - 1;
  Drawn drawn{{}, last};
  if (!surfaces_.view.ClipGroundSegment(vertices[last - 1], vertices[last], drawn.segment)) {
    return std::nullopt;
  }
  return drawn;
}

void TracedLine::Add(GroundPoint vertex) {
  vertices_.push_back(vertex);
  if (!surfaces_.plan_shown) return;
  if (const auto drawn = SegmentTo(vertices_)) {
    Flip({&*drawn, 1});
    segments_.push_back(*drawn);
  }
}

// The segment is taken off as it was drawn: the view may have changed since without a redraw.
bool TracedLine::RemoveLast() {
  if (vertices_.empty()) return false;
  vertices_.pop_back();
  if (!segments_.empty() && segments_.back().end_vertex == vertices_.size()) {
    Flip({&segments_.back(), 1});
    segments_.pop_back();
  }
  return true;
}

void TracedLine::End() {
  Flip();
  segments_.clear();
  vertices_.clear();
}

void TracedLine::DrawInto(CDC& buffer) {
  segments_.clear();
  const std::span<const GroundPoint> vertices(vertices_);
  for (std::size_t count = 2; count <= vertices.size(); ++count) {
    if (const auto drawn = SegmentTo(vertices.first(count))) segments_.push_back(*drawn);
  }
  FlipOn(buffer, segments_);
}

void TracedLine::Flip(std::span<const Drawn> segments) const {
  if (segments.empty() || !surfaces_.window.m_hWnd) return;
  DrawWhatCanBe([&] {
    ClientSurface screen(surfaces_.window);
    FlipOn(screen.Dc(), segments);
  });
  DrawWhatCanBe([&] { FlipOn(surfaces_.buffer, segments); });
}

void TracedLine::FlipOn(CDC& dc, std::span<const Drawn> segments) {
  const XorDrawing drawing(dc, PS_SOLID, 1, kCyan);
  for (const auto& [segment, end_vertex] : segments) {
    dc.MoveTo(segment.start.x, segment.start.y);
    dc.LineTo(segment.end.x, segment.end.y);
  }
}

}  // namespace tavix
