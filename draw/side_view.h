// The 3-D side view: the points with heights, standing on the plan laid flat.
#pragma once

#include "draw/plan_canvas.h"
#include "store/legend_table.h"
#include "store/point3_list.h"
#include "view/view_state.h"

namespace tavix {

// What the side view reads; all of it outlives the pass.
struct SideData {
  const CViewState& view;
  const LegendTable& legend;
  const CPnt3List& points;
  int width;  // pixels, of the whole picture
  int height;
  double height_base;  // metres: a point of this height stands on the ground plane
};

// Draws, bottom to top: the far sides of the box, a foot cross for each point, the points with
// their marks and labels, the near sides of the box, the height base.
void DrawSideView(PlanCanvas& canvas, const SideData& data);

}  // namespace tavix
