// The dashed outline that follows the stylus while the user drags a rectangle.
#pragma once

#include <afxwin.h>

#include <array>

#include "view/coordinates.h"
#include "window/overlays/overlay.h"

namespace tavix {

// Stands on the screen only.
class RubberBand : public XorOverlay {
 public:
  explicit RubberBand(CWnd& window) : window_(window) {}

  // Places the outline, as a point, at the press of the stylus; nothing is drawn.
  void Begin(ScreenPoint at);

  // Moves the outline: `corners` are the first corner's neighbour, the opposite corner and the
  // other neighbour. An outline without size is not drawn.
  void MoveTo(const std::array<ScreenPoint, 3>& corners);

  // Takes the outline off the screen, if it is there.
  void Erase();

  void PutBack(CDC& paint) override;

  [[nodiscard]] ScreenPoint FirstCorner() const {
    return {static_cast<int>(outline_[0].x), static_cast<int>(outline_[0].y)};
  }

 private:
  void Flip() const override;
  void FlipOn(CDC& dc) const;

  CWnd& window_;
  std::array<POINT, 5> outline_{};  // closed: the last point is the first
  bool shown_ = false;
};

}  // namespace tavix
