// The ways in which the host, and the user's buttons, stylus and keys, change the view of a plot.
#pragma once

#include <afxwin.h>

#include "view/coordinates.h"
#include "window/settings/plot_settings.h"

namespace tavix {

class CViewState;
class PlotDisplay;

// Every operation but the ratio ends with a redraw.
class Navigation {
 public:
  Navigation(CViewState& view, PlotDisplay& display, RatioSetting& ratio)
      : view_(view), display_(display), ratio_(ratio) {}

  // Zoom to a box: of a size around its centre, or with these south-west and north-east corners, or
  // the square around a circle; or move the centre. Always 0.
  int ZoomTo(GroundSize size, GroundPoint centre);
  int ZoomToBox(GroundPoint south_west, GroundPoint north_east);
  int ZoomToCircle(GroundPoint centre, double radius);
  int PanTo(GroundPoint centre);

  // By a factor of 1.5.
  void ZoomIn();
  void ZoomOut();

  // Zooms to the extents of data that have changed since the last fit; when none have, the extents
  // and the view before them take turns.
  void ZoomExtents();

  // By the legend's step, in the direction 1 or -1.
  void Rotate(int direction);

  // By an arrow key, VK_LEFT to VK_DOWN, as the scene shown takes it.
  void PressArrow(WPARAM key);

  // Stores the ratio and hands it to the view, without a redraw.
  void SetRatio(int vertical, int horizontal);
  [[nodiscard]] const RatioSetting& Ratio() const { return ratio_; }

 private:
  void Zoomed();

  CViewState& view_;
  PlotDisplay& display_;
  RatioSetting& ratio_;
};

}  // namespace tavix
