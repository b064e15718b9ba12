#include "draw/ink/ink_canvas.h"

#include "draw/bits/mark_proof.h"
#include "draw/point_label.h"

namespace tavix {

InkCanvas::InkCanvas(OneBitCanvas& picture, int width, int height)
    : plain_(picture.Dc()), block_{picture.Bits(), width, height, picture.Stride()} {}

void InkCanvas::UsePointStyle(const LegendStyle& style) {
  plain_.UsePointStyle(style);
  const LegendStyle mark = MarkOnly(style);
  const LearntMark* learnt = style.prm1 > 0 ? marks_.Get(mark, mark) : nullptr;
  mark_ = learnt && learnt->mark ? &*learnt->mark : nullptr;
  labels_ = style.prm2 > 0 ? fonts_.Get(style.prm2, InkHand(style.prm2)) : nullptr;
}

void InkCanvas::UseTextColor(std::uint32_t color) {
  plain_.UseTextColor(color);
  text_is_black_ = color == 0;
}

void InkCanvas::Mark(ScreenPoint at) {
  if (mark_) {
    mark_->Draw(Bits(), at);
  } else {
    plain_.Canvas().Mark(at);
  }
}

void InkCanvas::Label(ScreenPoint at, NameView text) {
  const LegendStyle& style = plain_.Style();
  const LabelBox box = PlaceLabel(at, style.prm1, style.prm2, static_cast<int>(text.size()));
  if (!labels_ || !text_is_black_ || !labels_->Draw(Bits(), {box.left, box.top}, text)) {
    plain_.Canvas().Label(at, text);
  }
}

const InkBlock& InkCanvas::Bits() {
  plain_.Settle();
  return block_;
}

}  // namespace tavix
