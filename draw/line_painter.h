// Draws lines and figures in the style of their legend.
#pragma once

#include <cstdint>

#include "draw/legend_lookup.h"
#include "draw/line_pattern.h"
#include "draw/plan_canvas.h"
#include "view/view_state.h"

namespace tavix {

// Draws segments and circles on the ground on one canvas. A legend without a line style (kinds 101
// to 105) draws no segment, but circles. Where no entry has been found yet, a circle is drawn with
// the pen that the canvas has.
class LinePainter {
 public:
  LinePainter(PlanCanvas& canvas, const CViewState& view, const LegendTable& legend);

  void DrawSegment(std::int16_t legend, GroundPoint start, GroundPoint end);

  // `radius` in metres.
  void DrawCircle(std::int16_t legend, GroundPoint centre, double radius);

 private:
  void Use(std::int16_t legend);
  void DrawStyled(const LegendStyle& style, GroundPoint start, GroundPoint end,
                  const ScreenSegment& clipped);
  void DrawHugeCircle(RealScreenPoint centre, double radius, const ScreenBox& box);

  PlanCanvas& canvas_;
  const CViewState& view_;
  LegendLookup entry_;
  ScreenBox visible_;
};

}  // namespace tavix
