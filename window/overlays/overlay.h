// The protocol of what is drawn over the picture of a plot window.
#pragma once

#include <afxwin.h>

#include "view/view_state.h"

namespace tavix {

// What overlays are drawn on, and seen through.
struct OverlaySurfaces {
  CWnd& window;
  CDC& buffer;
  const CViewState& view;
  bool plan_shown = true;  // else the overlays of the plan only remember what they are given
};

// An overlay stands on the screen between two paints, or in the back buffer between two redraws.
class Overlay {
 public:
  Overlay() = default;
  virtual ~Overlay() = default;
  Overlay(const Overlay&) = delete;
  Overlay& operator=(const Overlay&) = delete;

  // Draws it over the part of the picture that a paint has just copied to the screen.
  virtual void PutBack(CDC& /*paint*/) {}

  // Draws it into the back buffer, where everything below it has just been drawn.
  virtual void DrawInto(CDC& /*buffer*/) {}

  // Take it off where it stands, and draw it over again. Called in pairs around what is drawn at
  // once below it, with the view unchanged: over a picture that has changed, taking it off would
  // leave a trace. An overlay that is drawn by paints only has nothing to do.
  virtual void TakeOff() {}
  virtual void DrawOver() {}
};

// An overlay that changes between paints: drawing it again takes it off.
class XorOverlay : public Overlay {
 public:
  void TakeOff() final { Flip(); }
  void DrawOver() final { Flip(); }

 protected:
  // Draws it by exclusive-or where it stands, in the state it was last drawn in.
  virtual void Flip() const = 0;
};

}  // namespace tavix
