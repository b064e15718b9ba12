#include "draw/dib/dib_canvas.h"

#include "draw/labels.h"

namespace tavix {
namespace {

bool IsOnePixelWide(const Pen& pen) { return pen.width == 0 || pen.width == 1; }

bool IsNear(ScreenPoint at) {
  return at.x >= -kFarthestStep && at.x <= kFarthestStep && at.y >= -kFarthestStep &&
         at.y <= kFarthestStep;
}

}  // namespace

DibCanvas::DibCanvas(CDC& dc, const PixelBlock& block, LearntDrawing& learnt)
    : plain_(dc, block), learnt_(learnt), text_color_(dc.GetTextColor()) {
  learnt_.FollowSettings();
}

void DibCanvas::UsePen(const Pen& pen) {
  plain_.UsePen(pen);
  const std::optional<std::uint32_t> value = PixelBlock::ValueOf(pen.color);
  lines_ = IsOnePixelWide(pen) && value ? learnt_.Lines() : nullptr;
  line_color_ = value.value_or(0);
}

void DibCanvas::Line(const ScreenSegment& segment) {
  if (lines_ && IsNear(segment.start) && IsNear(segment.end)) {
    StepLine(plain_.Bits(), *lines_, segment, line_color_);
  } else {
    plain_.Line(segment);
  }
}

void DibCanvas::Circle(ScreenPoint centre, int radius) { plain_.Circle(centre, radius); }

void DibCanvas::UsePointSymbol(const PointSymbol& symbol) {
  plain_.UsePointSymbol(symbol);
  mark_ = symbol.size > 0 ? learnt_.Mark(symbol) : nullptr;
  LookUpLabels();
}

void DibCanvas::UseTextColor(std::uint32_t color) {
  if (color == text_color_) return;
  text_color_ = color;
  plain_.UseTextColor(color);
  LookUpLabels();
}

void DibCanvas::LookUpLabels() {
  const int height = plain_.Symbol().label_height;
  labels_ = height > 0 ? learnt_.Labels(height, text_color_) : nullptr;
}

void DibCanvas::Mark(ScreenPoint at) {
  if (mark_) {
    mark_->Draw(plain_.Bits(), at);
  } else {
    plain_.Mark(at);
  }
}

void DibCanvas::Label(ScreenPoint at, NameView text) {
  const LabelBox box = PlaceLabel(at, plain_.Symbol(), static_cast<int>(text.size()));
  plain_.PaintsText();
  if (!labels_ || !labels_->Draw(plain_.Bits(), {box.left, box.top}, text)) plain_.Label(at, text);
}

}  // namespace tavix
