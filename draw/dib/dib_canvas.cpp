#include "draw/dib/dib_canvas.h"

#include "draw/labels.h"

namespace tavix {

DibCanvas::DibCanvas(CDC& dc, const PixelBlock& block, RasterCache& cache)
    : gdi_(dc, block), cache_(cache), text_color_(dc.GetTextColor()) {
  cache_.FollowSettings();
  redraw_ = cache_.Redraws();
}

void DibCanvas::UsePen(const Pen& pen) {
  gdi_.UsePen(pen);
  const std::optional<std::uint32_t> value = PixelBlock::ValueOf(pen.color);
  lines_ = IsOnePixelWide(pen) && value ? cache_.Lines() : nullptr;
  line_color_ = value.value_or(0);
  strokes_ = cache_.StrokesOf(pen);
}

void DibCanvas::Line(const ScreenSegment& segment) {
  if (lines_ && IsNear(segment)) {
    StepLine(gdi_.Bits(), *lines_, segment, line_color_);
    return;
  }
  const auto [start, end] = segment;
  const MarkMask* stroke =
      strokes_ && IsNear(segment) ? strokes_->Line(end.x - start.x, end.y - start.y) : nullptr;
  if (stroke) {
    stroke->Draw(gdi_.Bits(), start);
  } else {
    gdi_.Line(segment);
  }
}

void DibCanvas::Circle(ScreenPoint centre, int radius) {
  const MarkMask* stroke =
      strokes_ && IsNear({centre, centre}) ? strokes_->Circle(radius) : nullptr;
  if (stroke) {
    stroke->Draw(gdi_.Bits(), centre);
  } else {
    gdi_.Circle(centre, radius);
  }
}

void DibCanvas::UsePointSymbol(const PointSymbol& symbol) {
  gdi_.UsePointSymbol(symbol);
  mark_ = symbol.size > 0 ? cache_.Mark(symbol) : nullptr;
  FindLabels();
}

void DibCanvas::UseTextColor(std::uint32_t color) {
  if (color == text_color_) return;
  text_color_ = color;
  gdi_.UseTextColor(color);
  FindLabels();
}

void DibCanvas::FindLabels() {
  const int height = gdi_.Symbol().label_height;
  labels_ = height > 0 ? cache_.Labels(height, text_color_) : nullptr;
}

void DibCanvas::Mark(ScreenPoint at) {
  if (mark_) {
    mark_->Draw(gdi_.Bits(), at);
  } else {
    gdi_.Mark(at);
  }
}

void DibCanvas::Label(ScreenPoint at, NameView text) {
  const LabelBox box = PlaceLabel(at, gdi_.Symbol(), static_cast<int>(text.size()));
  gdi_.PaintsText();
  if (!labels_ || !labels_->Draw(gdi_.Bits(), {box.left, box.top}, text)) gdi_.Label(at, text);
}

}  // namespace tavix
