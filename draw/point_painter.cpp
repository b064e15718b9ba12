#include "draw/point_painter.h"

#include "draw/point_label.h"

namespace tavix {

void PointPainter::Draw(const Point& point) {
  const LegendStyle& style = look_.Style();
  if (look_.Use(point.legend)) canvas_.UsePointStyle(style);
  ScreenPoint at;
  if (!view_.CircleOnScreen(point.at, look_.Margin(), at)) return;
  if (style.prm1 > 0) canvas_.Mark(at);
  if (style.prm2 > 0) {
    const LabelText label(style, point.number, point.name);
    if (!label.Text().empty()) canvas_.Label(at, label.Text());
  }
}

}  // namespace tavix
