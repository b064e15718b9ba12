// The plan view: everything of an instance, drawn as a map.
#pragma once

#include <cstdint>
#include <limits>

#include "figure/figure_list.h"
#include "store/legend_table.h"
#include "store/lin_db.h"
#include "store/point_list.h"
#include "view/view_state.h"

namespace tavix {

class PlanCanvas;

// What a drawing pass reads. All of it belongs to the instance and outlives the pass. The line
// store is walked, which moves its current record.
struct PlotData {
  const CViewState& view;
  const LegendTable& legend;
  const CPntList& points;
  CLinDb& lines;
  const CFigList& figures;
  bool draws_lines;  // lines and figures are drawn only while this is set
  // Of the figures, the first so many records.
  std::int32_t figure_count = std::numeric_limits<std::int32_t>::max();
};

// Draws the plan view's layers on `canvas`, bottom to top: figures, lines, points with their marks
// and labels.
void DrawPlanView(PlanCanvas& canvas, const PlotData& data);

// Draw a single entity as the plan view would.
void DrawSinglePoint(PlanCanvas& canvas, const PlotData& data, const Point& point);
void DrawSingleLine(PlanCanvas& canvas, const PlotData& data, const Line& line);

}  // namespace tavix
