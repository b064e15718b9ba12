// The polyline that the host traces over the plot, vertex by vertex.
#pragma once

#include <afxwin.h>

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "view/view_state.h"

namespace tavix {

// Drawn by exclusive-or on the screen and into the back buffer, so that a segment can be taken off
// by drawing it again. The vertices lie on the ground; the segments that show are kept as they were
// drawn, and made anew by each full redraw.
class TracedLine {
 public:
  // The two surfaces a change is drawn on.
  struct Surfaces {
    CWnd& window;
    CDC& buffer;
  };

  // Where the window shows something else than the plan, the new vertex is only remembered.
  void Add(const Surfaces& surfaces, const CViewState& view, GroundPoint vertex, bool plan_shown);

  // Takes the last vertex back, and the segment to it where it was drawn. False when there is none.
  bool RemoveLast(const Surfaces& surfaces);

  // Takes every segment off and forgets the vertices.
  void End(const Surfaces& surfaces);

  // Takes what is drawn off both surfaces, and on again when called a second time.
  void Flip(const Surfaces& surfaces) const { Flip(surfaces, segments_); }

  // Draws the segments of the present view into a buffer that has just been filled.
  void Redraw(CDC& buffer, const CViewState& view);

  // The buffer shows something else now: there are no segments to take off.
  void ForgetSegments() { segments_.clear(); }

  [[nodiscard]] std::span<const GroundPoint> Vertices() const { return vertices_; }

 private:
  // A segment as it was drawn; only those that reach the drawing area are.
  struct Drawn {
    ScreenSegment segment;
    std::size_t end_vertex;
  };

  // The segment to the last vertex in the present view, if it reaches the drawing area.
  [[nodiscard]] static std::optional<Drawn> SegmentTo(const CViewState& view,
                                                      std::span<const GroundPoint> vertices);
  static void FlipOn(CDC& dc, std::span<const Drawn> segments);
  static void Flip(const Surfaces& surfaces, std::span<const Drawn> segments);

  std::vector<GroundPoint> vertices_;
  std::vector<Drawn> segments_;  // in vertex order
};

}  // namespace tavix
