#include "draw/ink/ink_canvas.h"

#include "draw/dib/mark_proof.h"
#include "draw/point_label.h"

namespace tavix {

InkCanvas::InkCanvas(OneBitCanvas& picture, int width, int height)
    : plain_(picture.Dc(), {picture.Bits(), width, height, picture.Stride()}) {}

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
    mark_->Draw(plain_.Bits(), at);
  } else {
    plain_.Mark(at);
  }
}

void InkCanvas::Label(ScreenPoint at, NameView text) {
  const LegendStyle& style = plain_.Style();
  const LabelBox box = PlaceLabel(at, style.prm1, style.prm2, static_cast<int>(text.size()));
  plain_.PaintsText();
  if (!labels_ || !text_is_black_ || !labels_->Draw(plain_.Bits(), {box.left, box.top}, text)) {
    plain_.Label(at, text);
  }
}

}  // namespace tavix
