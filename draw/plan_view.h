// The plan view: everything of an instance, drawn as a map.
#pragma once

#include "store/legend_table.h"
#include "store/point_list.h"
#include "view/view_state.h"

class CDC;

namespace tavix {

// What a drawing pass reads. All of it belongs to the instance and outlives the pass.
struct PlotData {
  const CViewState& view;
  const LegendTable& legend;
  const CPntList& points;
};

// Draws the plan view's layers into `dc`, bottom to top: points with their marks and labels.
void DrawPlanView(CDC& dc, const PlotData& data);

// Draws a single point as the plan view would.
void DrawSinglePoint(CDC& dc, const PlotData& data, const Point& point);

}  // namespace tavix
