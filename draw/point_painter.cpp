#include "draw/point_painter.h"

#include "draw/labels.h"

namespace tavix {

bool PointPainter::Find(std::int16_t legend, GroundPoint ground, ScreenPoint& at) {
  if (symbol_.Use(legend)) {
    margin_ = view_.PixelsToLength(symbol_.Get().size);
    on_canvas_ = false;
  }
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

}  // namespace tavix
