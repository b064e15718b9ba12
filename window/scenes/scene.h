// What a plot window can show: the protocol of the plan and the side view.
#pragma once

#include <afxwin.h>

#include <algorithm>
#include <array>
#include <limits>
#include <span>

#include "store/legend_table.h"
#include "view/view_state.h"
#include "window/overlays/overlay.h"

namespace tavix {

class CFigList;
class CLinDb;
class CPnt3List;
class CPntList;
class PlanCanvas;
struct Line;
struct Point;

// The parts of the instance that its plot window works on. They outlive the window.
struct PlotLinks {
  CViewState& view;
  CPntList& points;
  CPnt3List& points3;
  CLinDb& lines;
  CFigList& figures;
  LegendTable& legend;
};

// The plan or the side view of an instance, both through the one view the instance has.
class Scene {
 public:
  Scene(CViewState& view, const LegendTable& legend) : view_(view), legend_(legend) {}
  virtual ~Scene() = default;
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;

  // Zooms to the extents of the data shown. 0, or a code of the point store when there is nothing
  // to fit.
  virtual int Fit() = 0;

  // Draws everything, overlays excepted.
  virtual void Draw(PlanCanvas& canvas) const = 0;

  // Draw a new entity at once, on the screen, where the window is visible, and into the back
  // buffer; nothing where the scene does not show it.
  virtual void DrawNew(const Point& /*point*/) {}
  virtual void DrawNew(const Line& /*line*/) {}

  // What stands over the picture, bottom to top.
  [[nodiscard]] virtual std::span<Overlay* const> Overlays() const = 0;

  // The ground under a client pixel.
  [[nodiscard]] virtual GroundPoint GroundUnder(ScreenPoint at) const = 0;

  // The outline of a plan rectangle with two opposite corners at these pixels: the neighbour of
  // `first`, `opposite`, and the other neighbour.
  [[nodiscard]] virtual std::array<ScreenPoint, 3> BandCorners(ScreenPoint first,
                                                               ScreenPoint opposite) const = 0;

  // Whether a tap picks points, and gives coordinates.
  [[nodiscard]] virtual bool IsPickable() const = 0;

  // The dirty flags of the stores shown, which say that the extents have changed since the last
  // fit: set, or read and cleared.
  virtual void MarkDirty() = 0;
  virtual bool TakeDirty() = 0;

  // Changes the view by an arrow key, VK_LEFT to VK_DOWN.
  virtual void PressArrow(WPARAM key) = 0;

  // Rotates the view by the legend's step, in the direction 1 or -1. A rotated view has other
  // extents.
  void RotateByStep(int direction) {
    // The legend file can carry any step; INT_MIN has no negative.
    const int step = std::max(legend_.RotationStep(), -std::numeric_limits<int>::max());
    view_.RotateBy(direction * step);
    MarkDirty();
  }

 protected:
  CViewState& view_;
  const LegendTable& legend_;
};

}  // namespace tavix
