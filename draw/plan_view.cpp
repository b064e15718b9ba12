#include "draw/plan_view.h"

#include "draw/line_painter.h"
#include "draw/plan_canvas.h"
#include "draw/point_painter.h"

namespace tavix {
namespace {

void DrawFigure(LinePainter& painter, const Figure& figure) {
  const auto legend = static_cast<std::int16_t>(figure.legend);
  if (!figure.is_circle) {
    painter.DrawPolyline(legend, figure.points);
  } else if (figure.points.size() >= 2) {
    painter.DrawCircle(legend, figure.points[0], figure.points[1].north);
  }
}

void DrawFigures(PlanCanvas& canvas, const PlotData& data) {
  LinePainter painter(canvas, data.view, data.legend);
  data.figures.ForEach([&](const Figure& figure) { DrawFigure(painter, figure); },
                       data.figure_count);
}

// A line whose end point is missing is passed over.
void DrawLine(LinePainter& painter, const PlotData& data, const Line& line) {
  GroundPoint start;
  GroundPoint end;
  if (data.points.Locate(line.keys.a, &start) && data.points.Locate(line.keys.b, &end)) {
    painter.DrawSegment(line.legend, start, end);
  }
}

// In the order of entry, so that later lines cover earlier ones as later points do.
void DrawLines(PlanCanvas& canvas, const PlotData& data) {
  LinePainter painter(canvas, data.view, data.legend);
  data.lines.ForEachIn(data.points, data.view.OutOfView(),
                       [&](std::int16_t legend, GroundPoint start, GroundPoint end) {
                         painter.DrawSegment(legend, start, end);
                       });
}

}  // namespace

void DrawPlanView(PlanCanvas& canvas, const PlotData& data) {
  if (data.draws_lines) {
    DrawFigures(canvas, data);
    DrawLines(canvas, data);
  }
  DrawPoints(canvas, data.view, data.legend, data.points);
}

void DrawSinglePoint(PlanCanvas& canvas, const PlotData& data, const Point& point) {
  PointPainter(canvas, data.view, data.legend).Draw(point);
}

void DrawSingleLine(PlanCanvas& canvas, const PlotData& data, const Line& line) {
  if (!data.draws_lines) return;
  LinePainter painter(canvas, data.view, data.legend);
  DrawLine(painter, data, line);
}

}  // namespace tavix
