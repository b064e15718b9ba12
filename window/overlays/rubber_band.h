// The dashed outline that follows the stylus while the user drags a rectangle.
#pragma once

#include <afxwin.h>

#include <array>

#include "view/coordinates.h"

namespace tavix {

// Drawn on the screen by exclusive-or, so that drawing the same outline again erases it.
class RubberBand {
 public:
  // Places the outline, as a point, where the stylus went down; nothing is drawn.
  void Begin(CWnd& window, ScreenPoint at);

  // Moves the outline: `corners` are the first corner's neighbour, the opposite corner and the
  // other neighbour. An outline without size is not drawn.
  void MoveTo(CWnd& window, const std::array<ScreenPoint, 3>& corners);

  // Takes the outline off the screen, if it is there.
  void Erase(CWnd& window);

  // Draws the outline, if it is on the screen, into the part that a paint has covered.
  void Restore(CDC& paint) const;

  // Keeps the outline off the screen while something else is drawn there at once, which would
  // leave a trace of an outline it covers.
  class Hidden {
   public:
    Hidden(const RubberBand& band, CWnd& window) : band_(band), window_(window) {
      if (band_.shown_) band_.Flip(window_);
    }
    ~Hidden() {
      if (band_.shown_) band_.Flip(window_);
    }
    Hidden(const Hidden&) = delete;
    Hidden& operator=(const Hidden&) = delete;

   private:
    const RubberBand& band_;
    CWnd& window_;
  };

  [[nodiscard]] ScreenPoint FirstCorner() const {
    return {static_cast<int>(outline_[0].x), static_cast<int>(outline_[0].y)};
  }

 private:
  void Flip(CWnd& window) const;
  void FlipOn(CDC& dc) const;

  std::array<POINT, 5> outline_{};  // closed: the last point is the first
  bool shown_ = false;
};

}  // namespace tavix
