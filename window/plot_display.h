// What a plot window shows: one of two scenes, drawn into the back buffer and copied to the screen.
//
// A redraw invalidates the window at once and is drawn when its picture is needed: by the paint, or
// before something changes that it shows. However many are asked for until then, one is drawn.
#pragma once

#include <afxwin.h>

#include "draw/drawing_way.h"
#include "window/immediate_surfaces.h"
#include "window/output.h"
#include "window/overlays/rubber_band.h"
#include "window/scenes/plan_scene.h"
#include "window/scenes/side_scene.h"

namespace tavix {

class ButtonColumn;

class PlotDisplay {
 public:
  // Shows the plan. `ratio` decides which axis the scale bar measures.
  PlotDisplay(CWnd& window, const ButtonColumn& buttons, const PlotLinks& links,
              const RatioSetting& ratio);

  // Makes the back buffer, once the window has been made.
  void CreateBuffer() { buffer_.Create(surfaces_.window); }

  // Switches the scene, without a redraw. To be called before the view changes with it: a moved
  // point is taken off the plan.
  void ShowSideView(bool on);

  [[nodiscard]] Scene& Shown() { return *shown_; }
  [[nodiscard]] PlanScene& Plan() { return plan_; }
  [[nodiscard]] RubberBand& Band() { return band_; }

  // Has everything drawn, and invalidates the window. Always 0.
  int Redraw();

  // Draws the redraw that is pending, if one is. To be called before anything but Redraw reaches
  // for the back buffer, and before a change of what is drawn (data, legend, view, scene) that no
  // redraw follows.
  void FinishRedraw();

  // The same before a figure is added: as it comes after all others, a pending redraw can stay
  // pending and leave it out.
  void LeaveOutNewFigures();

  // The same after every change of the view, and for every redraw that a host asks for.
  int ViewChanged();

  // To be called before the window goes: gives back what is kept of its screen.
  void ReleaseScreen() { immediate_.Release(); }

  // Whether a paint leaves nothing of what the client area showed before.
  [[nodiscard]] bool Covers(const CRect& client) const { return buffer_.Covers(client); }

  // Copies the buffer, and puts the overlays back over it.
  void Paint(CDC& paint, const CRect& clip);

 private:
  const ButtonColumn& buttons_;
  BackBuffer buffer_;
  DrawingWay way_ = DrawingWayOfEnvironment();
  OverlaySurfaces surfaces_;
  ImmediateSurfaces immediate_;
  RubberBand band_;
  PlanScene plan_;
  SideScene side_;
  Scene* shown_ = &plan_;
  bool redraw_pending_ = false;
};

}  // namespace tavix
