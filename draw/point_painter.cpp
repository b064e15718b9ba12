#include "draw/point_painter.h"

#include "draw/labels.h"

namespace tavix {

void PointPainter::Use(std::int16_t legend) {
  if (!symbol_.Use(legend)) return;
  margin_ = view_.PixelsToLength(symbol_.Get().size);
  on_canvas_ = false;
}

void PointPainter::UseLast(std::span<const PntRec> points) {
  auto from = points.end();
  while (from != points.begin()) {
    --from;
    if (!from->removed && symbol_.Decides(from->legend)) break;
  }
  for (; from != points.end(); ++from) {
    if (!from->removed) Use(from->legend);
  }
}

bool PointPainter::Find(std::int16_t legend, GroundPoint ground, ScreenPoint& at) {
  Use(legend);
  return view_.CircleOnScreen(ground, margin_, at);
}

void PointPainter::DrawAt(ScreenPoint at, std::int32_t number, NameView name) {
  const PointSymbol& symbol = symbol_.Get();
  const bool has_label = symbol.label_height > 0;
  if (!HasMark() && !has_label) return;
  if (!on_canvas_) {
    PointSymbol drawn = symbol;
    if (pen_) drawn.pen = *pen_;
    canvas_.UsePointSymbol(drawn);
    on_canvas_ = true;
  }
  if (HasMark()) canvas_.Mark(at);
  if (has_label) {
    const LabelText label(symbol.label, number, name);
    if (!label.Text().empty()) canvas_.Label(at, label.Text());
  }
}

void PointPainter::UsePen(std::optional<Pen> pen) {
  if (pen == pen_) return;
  pen_ = pen;
  on_canvas_ = false;
}

void DrawPoints(PlanCanvas& canvas, const CViewState& view, const LegendTable& legend,
                const CPntList& points) {
  PointPainter painter(canvas, view, legend);
  points.ForEachIn(view.GroundAround(kLargestDrawn),
                   [&](const Point& point, std::span<const PntRec> passed_over) {
                     painter.Draw(point, passed_over);
                   });
}

}  // namespace tavix
