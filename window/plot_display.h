// What a plot window shows: one of two scenes, drawn into the back buffer and copied to the screen.
#pragma once

#include <afxwin.h>

#include "draw/drawing_way.h"
#include "window/output.h"
#include "window/overlays/rubber_band.h"
#include "window/scenes/plan_scene.h"
#include "window/scenes/side_scene.h"

namespace tavix {

class PlotDisplay {
 public:
  // Shows the plan. `ratio` decides which axis the scale bar measures.
  PlotDisplay(CWnd& window, const PlotLinks& links, const RatioSetting& ratio);

  // Makes the back buffer, once the window has been made.
  void CreateBuffer() { buffer_.Create(surfaces_.window); }

  // Switches the scene, without a redraw. To be called before the view changes with it: a moved
  // point is taken off the plan.
  void ShowSideView(bool on);

  [[nodiscard]] Scene& Shown() { return *shown_; }
  [[nodiscard]] PlanScene& Plan() { return plan_; }
  [[nodiscard]] RubberBand& Band() { return band_; }

  // Draws everything into the back buffer and has the window repainted. Always 0.
  int Redraw();

  // The same after every change of the view, and for every redraw that a host asks for.
  int ViewChanged();

  // Copies the buffer, and puts the overlays back over it.
  void Paint(CDC& paint, const CRect& clip);

 private:
  BackBuffer buffer_;
  DrawingWay way_ = DrawingWayOfEnvironment();
  OverlaySurfaces surfaces_;
  RubberBand band_;
  PlanScene plan_;
  SideScene side_;
  Scene* shown_ = &plan_;
};

}  // namespace tavix
