// The polyline that the host traces over the plot, vertex by vertex.
#pragma once

#include <afxwin.h>

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

  void Add(const Surfaces& surfaces, const CViewState& view, GroundPoint vertex);

  // Takes the last vertex back. False when there is none.
  bool RemoveLast(const Surfaces& surfaces, const CViewState& view);

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
  static void Flip(const Surfaces& surfaces, std::span<const ScreenSegment> segments);

  std::vector<GroundPoint> vertices_;
  std::vector<ScreenSegment> segments_;  // those that reach the drawing area, in vertex order
};

}  // namespace tavix
