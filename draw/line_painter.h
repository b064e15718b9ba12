// Draws lines and figures, each with the symbol of its legend.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "draw/line_styles.h"
#include "draw/plan_canvas.h"
#include "draw/symbol_in_use.h"
#include "view/view_state.h"

namespace tavix {

// Draws segments and circles on the ground on one canvas. A legend without a line style (kinds 101
// to 105) draws no segment, but circles. Where no entry has been found yet, a circle is drawn with
// the pen that the canvas has.
class LinePainter {
 public:
  LinePainter(PlanCanvas& canvas, const CViewState& view, const LegendTable& legend);

  void DrawSegment(std::int16_t legend, GroundPoint start, GroundPoint end);

  // Segments from each point to the next. Each point is transformed once.
  void DrawPolyline(std::int16_t legend, std::span<const GroundPoint> points);

  // `radius` in metres.
  void DrawCircle(std::int16_t legend, GroundPoint centre, double radius);

 private:
  void Use(std::int16_t legend);
  // The part that shows of a segment between two points on the ground, with the symbol in use.
  void DrawClipped(ScreenSegment& clipped, GroundPoint start, GroundPoint end);
  void DrawPattern(GroundPoint start, GroundPoint end);
  void DrawHugeCircle(RealScreenPoint centre, double radius);
  [[nodiscard]] ScreenBox Reached() const;

  PlanCanvas& canvas_;
  const CViewState& view_;
  SymbolInUse<LineSymbol> symbol_;
  bool is_solid_ = false;               // the symbol in use is a solid line,
  std::optional<LinePattern> pattern_;  // or has this pattern, or draws no segment
  ScreenBox visible_;
  SegmentSieve out_of_view_;
};

}  // namespace tavix
