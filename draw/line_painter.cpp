#include "draw/line_painter.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "draw/drawn_size.h"
#include "draw/screen_line.h"
#include "view/coordinates.h"

namespace tavix {
namespace {

// Circles above this radius in pixels are beyond the system's coordinates, or cost it seconds.
constexpr int kLargestRadius = 1 << 14;

// `box` grown by the reach of a pen, and by a pixel for the truncation of positions.
ScreenBox Grown(const ScreenBox& box, int pen_width) {
  const int reach = std::abs(DrawnSize(pen_width)) + 1;
  return {box.left - reach, box.top - reach, box.right + reach, box.bottom + reach};
}

}  // namespace

LinePainter::LinePainter(PlanCanvas& canvas, const CViewState& view, const LegendTable& legend)
    : canvas_(canvas), view_(view), entry_(legend), visible_(canvas.Visible()) {}

void LinePainter::Use(std::int16_t legend) {
  if (entry_.Use(legend)) canvas_.UseLineStyle(DrawnLineStyle(entry_.Style()));
}

void LinePainter::DrawSegment(std::int16_t legend, GroundPoint start, GroundPoint end) {
  ScreenSegment clipped;
  if (!view_.ClipGroundSegment(start, end, clipped)) return;
  Use(legend);
  DrawStyled(entry_.Style(), start, end, clipped);
}

void LinePainter::DrawStyled(const LegendStyle& style, GroundPoint start, GroundPoint end,
                             const ScreenSegment& clipped) {
  if (style.kind == kSolidLine) {
    canvas_.Line(WithDot(clipped));
    return;
  }
  const std::optional<LinePattern> pattern = PatternOf(style);
  if (!pattern) return;
  WalkPattern(
      view_, *pattern, start, end, Grown(visible_, style.width), [this](const LinePiece& piece) {
        canvas_.Line(WithDot({view_.GroundToScreen(piece.start), view_.GroundToScreen(piece.end)}));
      });
}

void LinePainter::DrawCircle(std::int16_t legend, GroundPoint centre, double radius) {
  ScreenPoint at;
  if (!view_.CircleOnScreen(centre, radius, at)) return;
  Use(legend);
  const int r = view_.LengthToPixels(radius);
  if (r < -kLargestRadius) return;
  if (r > kLargestRadius) {
    DrawHugeCircle(view_.GroundToRealScreen(centre), radius * view_.Scale(),
                   Grown(visible_, entry_.Style().width));
    return;
  }
  canvas_.Circle(at, r);
}

// The outline where it crosses the box, as a polyline that is true to the pixel.
void LinePainter::DrawHugeCircle(RealScreenPoint centre, double radius, const ScreenBox& box) {
  const RealScreenPoint middle{(box.left + box.right) * 0.5, (box.top + box.bottom) * 0.5};
  const double reach = std::hypot(box.right - box.left, box.bottom - box.top) * 0.5;
  const double distance = std::hypot(middle.x - centre.x, middle.y - centre.y);
  if (std::fabs(distance - radius) > reach) return;  // the outline passes by
  const double toward = std::atan2(middle.y - centre.y, middle.x - centre.x);
  const double half_angle = std::asin(std::min(1.0, reach / radius)) * 1.5;
  constexpr int kPieces = 256;
  for (int i = 0; i < kPieces; ++i) {
    const auto at = [&](int k) {
      const double angle = toward + half_angle * (2.0 * k / kPieces - 1.0);
      return ScreenPoint{TruncateToInt(centre.x + radius * std::cos(angle)),
                         TruncateToInt(centre.y + radius * std::sin(angle))};
    };
    canvas_.Line({at(i), at(i + 1)});
  }
}

}  // namespace tavix
