#include "draw/line_painter.h"

#include <algorithm>
#include <cmath>

#include "view/truncate.h"

namespace tavix {
namespace {

// Circles above this radius in pixels are beyond the system's coordinates, or cost it seconds.
constexpr int kLargestRadius = 1 << 14;

ScreenBox VisibleBox(CDC& dc) {
  CRect box(0, 0, 0, 0);
  dc.GetClipBox(&box);
  return {static_cast<int>(box.left), static_cast<int>(box.top), static_cast<int>(box.right),
          static_cast<int>(box.bottom)};
}

// `box` grown by the reach of a pen, and by a pixel for the truncation of positions.
ScreenBox Grown(const ScreenBox& box, int pen_width) {
  const int reach = std::clamp(pen_width, 0, 1 << 16) + 1;
  return {box.left - reach, box.top - reach, box.right + reach, box.bottom + reach};
}

// The outline of a huge circle where it crosses the box, as a polyline that is true to the pixel.
void DrawHugeCircle(CDC& dc, RealScreenPoint centre, double radius, const ScreenBox& box) {
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
    const ScreenPoint from = at(i);
    const ScreenPoint to = at(i + 1);
    dc.MoveTo(from.x, from.y);
    dc.LineTo(to.x, to.y);
  }
}

}  // namespace

void DrawScreenLine(CDC& dc, const ScreenSegment& segment) {
  dc.MoveTo(segment.start.x, segment.start.y);
  if (segment.start == segment.end) {
    dc.LineTo(segment.start.x + 1, segment.start.y);
  } else {
    dc.LineTo(segment.end.x, segment.end.y);
  }
}

LinePainter::LinePainter(CDC& dc, const CViewState& view, const LegendTable& legend)
    : dc_(dc), view_(view), pen_(dc, legend), visible_(VisibleBox(dc)) {}

void LinePainter::DrawSegment(std::int16_t legend, GroundPoint start, GroundPoint end) {
  ScreenSegment clipped;
  if (!view_.ClipGroundSegment(start, end, clipped)) return;
  pen_.Use(legend);
  DrawStyled(pen_.Style(), start, end, clipped);
}

void LinePainter::DrawStyled(const LegendStyle& style, GroundPoint start, GroundPoint end,
                             const ScreenSegment& clipped) {
  if (style.kind == kSolidLine) {
    DrawScreenLine(dc_, clipped);
    return;
  }
  const std::optional<LinePattern> pattern = PatternOf(style);
  if (!pattern) return;
  WalkPattern(
      view_, *pattern, start, end, Grown(visible_, style.width), [this](const LinePiece& piece) {
        DrawScreenLine(dc_, {view_.GroundToScreen(piece.start), view_.GroundToScreen(piece.end)});
      });
}

void LinePainter::DrawCircle(std::int16_t legend, GroundPoint centre, double radius) {
  ScreenPoint at;
  if (!view_.CircleOnScreen(centre, radius, at)) return;
  pen_.Use(legend);
  if (pen_.Style() == LegendStyle{}) return;
  const int r = view_.LengthToPixels(radius);
  if (r < -kLargestRadius) return;
  if (r > kLargestRadius) {
    DrawHugeCircle(dc_, view_.GroundToRealScreen(centre), radius * view_.Scale(),
                   Grown(visible_, pen_.Style().width));
    return;
  }
  // The right-bottom corner comes first; the system puts that right.
  dc_.Ellipse(at.x + r, at.y + r, at.x - r, at.y - r);
}

}  // namespace tavix
