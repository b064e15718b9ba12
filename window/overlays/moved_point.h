// The mark, and the line to it, that follow a point the user is moving.
#pragma once

#include <afxwin.h>

#include "store/symbols.h"
#include "view/coordinates.h"
#include "window/overlays/overlay.h"

namespace tavix {

// Stands on the screen only, never in the back buffer. A position off the screen is remembered and
// not drawn.
class MovedPoint : public XorOverlay {
 public:
  explicit MovedPoint(const OverlaySurfaces& surfaces) : surfaces_(surfaces) {}

  // Takes the mark and the pen of a symbol; what was on the screen is taken off. Without a start
  // the mark is a black circle of 10 pixels.
  void Start(const PointSymbol& symbol);

  // From the next move on a line runs from `anchor` to the mark. A mark that is on the screen is
  // then taken off together with a line that was not there: the host sets the anchor before the
  // first move.
  void SetAnchor(GroundPoint anchor);

  // Where the window shows something else than the plan, the new place is only remembered.
  void MoveTo(GroundPoint at);
  void End();

  // Takes the mark off the screen until the next move or paint of the plan.
  void Hide();

  // Draws the mark and counts it as on the screen: it can have been moved while the side view was
  // shown.
  void PutBack(CDC& paint) override;

  [[nodiscard]] bool IsDrawn() const { return drawn_; }
  [[nodiscard]] GroundPoint Position() const { return position_; }

 private:
  static constexpr COLORREF kWhite = 0x00FFFFFF;

  void Flip() const override;
  void FlipOn(CDC& dc) const;

  const OverlaySurfaces& surfaces_;
  bool drawn_ = false;
  bool on_screen_ = false;
  COLORREF color_ = kWhite;  // the legend's, inverted: by exclusive-or it shows true on white
  int pen_width_ = 1;
  int mark_ = 2;
  int mark_size_ = 10;  // pixels
  GroundPoint position_;
  bool has_line_ = false;
  GroundPoint anchor_;
};

}  // namespace tavix
