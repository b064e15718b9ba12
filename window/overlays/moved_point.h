// The mark, and the line to it, that follow a point the user is moving.
#pragma once

#include <afxwin.h>

#include "store/symbols.h"
#include "view/view_state.h"

namespace tavix {

// Drawn on the screen by exclusive-or, never into the back buffer; drawing the same state again
// takes it off. A position off the screen is remembered and not drawn.
class MovePoint {
 public:
  // Takes the mark and the pen of a symbol; what was on the screen is taken off. Without a start
  // the mark is a black circle of 10 pixels.
  void Start(CWnd& window, const CViewState& view, const PointSymbol& symbol);

  // From the next move on a line runs from `anchor` to the mark. A mark that is on the screen is
  // then taken off together with a line that was not there: the host sets the anchor before the
  // first move.
  void SetAnchor(GroundPoint anchor);

  // Where the window shows something else than the plan, the new place is only remembered.
  void MoveTo(CWnd& window, const CViewState& view, GroundPoint at, bool plan_shown);
  void End(CWnd& window, const CViewState& view);

  // Takes the mark off the screen until the next move or paint of the plan.
  void Hide(CWnd& window, const CViewState& view);

  // Draws the present state over what a paint has copied.
  void Restore(CDC& paint, const CViewState& view);

  // Takes what is on the screen off, and on again when called a second time.
  void Flip(CWnd& window, const CViewState& view) const;

  [[nodiscard]] bool IsDrawn() const { return drawn_; }
  [[nodiscard]] GroundPoint Position() const { return position_; }

 private:
  static constexpr COLORREF kWhite = 0x00FFFFFF;

  void FlipOn(CDC& dc, const CViewState& view) const;

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
