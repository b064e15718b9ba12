// The polyline that the host traces over the plot, vertex by vertex.
#pragma once

#include <afxwin.h>

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "view/coordinates.h"
#include "window/overlays/overlay.h"

namespace tavix {

// Stands on the screen and in the back buffer. The vertices lie on the ground; the segments that
// show are kept as they were drawn, and worked out again by each full redraw.
class TracedLine : public XorOverlay {
 public:
  explicit TracedLine(const OverlaySurfaces& surfaces) : surfaces_(surfaces) {}

  // Where the window shows something else than the plan, the new vertex is only remembered.
  void Add(GroundPoint vertex);

  // Takes the last vertex back, and the segment to it where it was drawn. False when there is none.
  bool RemoveLast();

  // Takes every segment off and forgets the vertices.
  void End();

  // The buffer was filled: there are no segments to take off.
  void ForgetSegments() { segments_.clear(); }

  // Draws the segments of the present view.
  void DrawInto(CDC& buffer) override;

  [[nodiscard]] std::span<const GroundPoint> Vertices() const { return vertices_; }

 private:
  // A segment as it was drawn; only those that reach the drawing area are.
  struct Drawn {
    ScreenSegment segment;
    std::size_t end_vertex;
  };

  // The segment to the last vertex in the present view, if it reaches the drawing area.
  [[nodiscard]] std::optional<Drawn> SegmentTo(std::span<const GroundPoint> vertices) const;

  void Flip() const override { Flip(segments_); }
  void Flip(std::span<const Drawn> segments) const;
  static void FlipOn(CDC& dc, std::span<const Drawn> segments);

  const OverlaySurfaces& surfaces_;
  std::vector<GroundPoint> vertices_;
  std::vector<Drawn> segments_;  // in vertex order
};

}  // namespace tavix
