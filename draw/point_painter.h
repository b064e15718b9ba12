// Draws the points of the plan, one after another.
#pragma once

#include "draw/plan_canvas.h"
#include "draw/point_look.h"
#include "store/point_list.h"
#include "view/view_state.h"

namespace tavix {

// Draws points on a canvas, each with the look of its legend.
class PointPainter {
 public:
  PointPainter(PlanCanvas& canvas, const CViewState& view, const LegendTable& legend)
      : canvas_(canvas), view_(view), look_(view, legend) {}

  // The point's mark, then its label. A point out of view draws nothing.
  void Draw(const Point& point);

 private:
  PlanCanvas& canvas_;
  const CViewState& view_;
  PointLook look_;
};

}  // namespace tavix
