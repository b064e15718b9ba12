#include "draw/ink/ink_canvas.h"

#include "draw/labels.h"

namespace tavix {

InkCanvas::InkCanvas(OneBitBitmap& picture, int width, int height, InkCache& cache)
    : gdi_(picture.Dc(), {picture.Bits(), width, height, picture.Stride()}), cache_(cache) {
  cache_.BeginPicture();
}

void InkCanvas::UsePen(const Pen& pen) {
  gdi_.UsePen(pen);
  const std::optional<std::uint32_t> value = InkBlock::ValueOf(pen.color);
  lines_ = IsOnePixelWide(pen) && value ? cache_.Lines() : nullptr;
  line_value_ = value.value_or(0);
}

void InkCanvas::Line(const ScreenSegment& segment) {
  if (lines_ && IsNear(segment)) {
    StepLine(gdi_.Bits(), *lines_, segment, line_value_);
  } else {
    gdi_.Line(segment);
  }
}

void InkCanvas::UsePointSymbol(const PointSymbol& symbol) {
  gdi_.UsePointSymbol(symbol);
  mark_ = symbol.size > 0 ? cache_.Mark(symbol) : nullptr;
  labels_ = symbol.label_height > 0 ? cache_.Labels(symbol.label_height) : nullptr;
}

void InkCanvas::UseTextColor(std::uint32_t color) {
  gdi_.UseTextColor(color);
  text_is_black_ = color == 0;
}

void InkCanvas::Mark(ScreenPoint at) {
  if (mark_) {
    mark_->Draw(gdi_.Bits(), at);
  } else {
    gdi_.Mark(at);
  }
}

void InkCanvas::Label(ScreenPoint at, NameView text) {
  const LabelBox box = PlaceLabel(at, gdi_.Symbol(), static_cast<int>(text.size()));
  gdi_.PaintsText();
  if (!labels_ || !text_is_black_ || !labels_->Draw(gdi_.Bits(), {box.left, box.top}, text)) {
    gdi_.Label(at, text);
  }
}

}  // namespace tavix
