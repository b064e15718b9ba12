#include "draw/line_painter.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <optional>

#include "view/coordinates.h"

namespace tavix {
namespace {

// Circles above this radius in pixels are beyond GDI's coordinates, or take it seconds.
constexpr int kLargestRadius = 1 << 14;

}  // namespace

LinePainter::LinePainter(PlanCanvas& canvas, const CViewState& view, const LegendTable& legend)
    : canvas_(canvas),
      view_(view),
      symbol_(legend),
      visible_(canvas.Visible()),
      out_of_view_(view.OutOfView()) {}

void LinePainter::Use(std::int16_t legend) {
  if (symbol_.Use(legend)) canvas_.UsePen(symbol_.Get().pen);
}

// What is visible, grown by the reach of the pen, and by a pixel for the truncation of positions.
ScreenBox LinePainter::Reached() const {
  const int reach = std::abs(symbol_.Get().pen.width) + 1;
  return {visible_.left - reach, visible_.top - reach, visible_.right + reach,
          visible_.bottom + reach};
}

void LinePainter::DrawSegment(std::int16_t legend, GroundPoint start, GroundPoint end) {
  ScreenSegment clipped;
  if (view_.ClipGroundSegment(start, end, clipped)) DrawClipped(legend, clipped, start, end);
}

void LinePainter::DrawPolyline(std::int16_t legend, std::span<const GroundPoint> points) {
  if (points.empty() || out_of_view_.HoldsBack(points)) return;
  ScreenPoint from = view_.GroundToScreen(points.front());
  for (std::size_t i = 1; i < points.size(); ++i) {
    const ScreenPoint to = view_.GroundToScreen(points[i]);
    ScreenSegment segment{from, to};
    if (view_.ClipScreenSegment(segment)) DrawClipped(legend, segment, points[i - 1], points[i]);
    from = to;
  }
}

void LinePainter::DrawClipped(std::int16_t legend, const ScreenSegment& clipped, GroundPoint start,
                              GroundPoint end) {
  Use(legend);
  if (symbol_.Get().style == kSolidLine) {
    canvas_.Line(WithDot(clipped));
  } else if (const std::optional<LinePattern> pattern = PatternOf(symbol_.Get())) {
    DrawPattern(*pattern, start, end);
  }
}

void LinePainter::DrawPattern(const LinePattern& pattern, GroundPoint start, GroundPoint end) {
  WalkPattern(view_, pattern, start, end, Reached(), [this](const LinePiece& piece) {
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
    DrawHugeCircle(view_.GroundToRealScreen(centre), radius * view_.Scale());
  } else {
    canvas_.Circle(at, r);
  }
}

// The outline where it crosses what is visible, as a polyline that is true to the pixel.
void LinePainter::DrawHugeCircle(RealScreenPoint centre, double radius) {
  const ScreenBox box = Reached();
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
