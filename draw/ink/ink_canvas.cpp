#include "draw/ink/ink_canvas.h"

#include "draw/dib/mark_proof.h"
#include "draw/labels.h"

namespace tavix {

InkCanvas::InkCanvas(OneBitCanvas& picture, int width, int height)
    : plain_(picture.Dc(), {picture.Bits(), width, height, picture.Stride()}) {}

void InkCanvas::UsePointSymbol(const PointSymbol& symbol) {
  plain_.UsePointSymbol(symbol);
  const PointSymbol mark = MarkOnly(symbol);
  const LearntMark* learnt = symbol.size > 0 ? marks_.Get(mark, mark) : nullptr;
  mark_ = learnt && learnt->mark ? &*learnt->mark : nullptr;
  const int height = symbol.label_height;
  labels_ = height > 0 ? fonts_.Get(height, InkHand(height)) : nullptr;
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
  const LabelBox box = PlaceLabel(at, plain_.Symbol(), static_cast<int>(text.size()));
  plain_.PaintsText();
  if (!labels_ || !text_is_black_ || !labels_->Draw(plain_.Bits(), {box.left, box.top}, text)) {
    plain_.Label(at, text);
  }
}

}  // namespace tavix
