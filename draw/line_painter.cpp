#include "draw/line_painter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <utility>

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
  if (!symbol_.Use(legend)) return;
  const LineSymbol& symbol = symbol_.Get();
  canvas_.UsePen(symbol.pen);
  is_solid_ = symbol.style == kSolidLine;
  pattern_ = PatternOf(symbol);
}

// What is visible, grown by the reach of the pen, and by a pixel for the truncation of positions.
ScreenBox LinePainter::Reached() const {
  const int reach = std::abs(symbol_.Get().pen.width) + 1;
  return {visible_.left - reach, visible_.top - reach, visible_.right + reach,
          visible_.bottom + reach};
}

void LinePainter::DrawSegment(std::int16_t legend, GroundPoint start, GroundPoint end) {
  ScreenSegment clipped;
  if (!view_.ClipGroundSegment(start, end, clipped)) return;
  Use(legend);
  DrawClipped(clipped, start, end);
}

void LinePainter::DrawPolyline(std::int16_t legend, std::span<const GroundPoint> points) {
  if (points.empty() || out_of_view_.HoldsBack(points)) return;
  const GroundTransform transform = view_.Transform();
  bool in_use = false;
  std::array<ScreenPoint, 64> pixels;
  for (std::size_t from = 0; from + 1 < points.size(); from += pixels.size() - 1) {
    const auto part = points.subspan(from, std::min(pixels.size(), points.size() - from));
    for (std::size_t i = 0; i < part.size(); ++i) pixels[i] = transform.ToScreen(part[i]);
    for (std::size_t i = 1; i < part.size(); ++i) {
      ScreenSegment segment{pixels[i - 1], pixels[i]};
      if (!view_.ClipScreenSegment(segment)) continue;
      if (!std::exchange(in_use, true)) Use(legend);
      DrawClipped(segment, part[i - 1], part[i]);
    }
  }
}

void LinePainter::DrawClipped(ScreenSegment& clipped, GroundPoint start, GroundPoint end) {
  if (is_solid_) {
    AddDot(clipped);
    canvas_.Line(clipped);
  } else if (pattern_) {
    DrawPattern(start, end);
  }
}

void LinePainter::DrawPattern(GroundPoint start, GroundPoint end) {
  WalkPattern(view_, *pattern_, start, end, Reached(), [this](const LinePiece& piece) {
    ScreenSegment line{view_.GroundToScreen(piece.start), view_.GroundToScreen(piece.end)};
    AddDot(line);
    canvas_.Line(line);
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
