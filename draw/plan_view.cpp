#include "draw/plan_view.h"

#include <afxwin.h>

#include "draw/point_painter.h"
#include "draw/transparent_background.h"

namespace tavix {

void DrawPlanView(CDC& dc, const PlotData& data) {
  const TransparentBackground transparent(dc);
  PointLook look(dc, data.view, data.legend);
  data.points.ForEach([&](const Point& point) { DrawPlanPoint(dc, data.view, look, point); });
}

void DrawSinglePoint(CDC& dc, const PlotData& data, const Point& point) {
  const TransparentBackground transparent(dc);
  PointLook look(dc, data.view, data.legend);
  DrawPlanPoint(dc, data.view, look, point);
}

}  // namespace tavix
