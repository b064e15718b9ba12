// Draws lines and figures in the style of their legend.
#pragma once

#include <afxwin.h>

#include <cstdint>

#include "draw/legend_pen.h"
#include "draw/line_pattern.h"
#include "view/view_state.h"

namespace tavix {

// Joins two pixels; two ends on one pixel still leave a dot.
void DrawScreenLine(CDC& dc, const ScreenSegment& segment);

// Draws segments and circles on the ground into one device context. A legend without a line style
// (kinds 101 to 105) draws no segment.
class LinePainter {
 public:
  LinePainter(CDC& dc, const CViewState& view, const LegendTable& legend);

  void DrawSegment(std::int16_t legend, GroundPoint start, GroundPoint end);

  // `radius` in metres.
  void DrawCircle(std::int16_t legend, GroundPoint centre, double radius);

 private:
  void DrawStyled(const LegendStyle& style, GroundPoint start, GroundPoint end,
                  const ScreenSegment& clipped);

  CDC& dc_;
  const CViewState& view_;
  LegendPen pen_;
  ScreenBox visible_;  // what the device context shows
};

}  // namespace tavix
