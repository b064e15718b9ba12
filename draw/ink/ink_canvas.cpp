#include "draw/ink/ink_canvas.h"

#include "draw/dib/verification.h"
#include "draw/labels.h"

namespace tavix {

InkCanvas::InkCanvas(OneBitBitmap& picture, int width, int height)
    : gdi_(picture.Dc(), {picture.Bits(), width, height, picture.Stride()}) {}

void InkCanvas::UsePointSymbol(const PointSymbol& symbol) {
  gdi_.UsePointSymbol(symbol);
  const PointSymbol mark = MarkOnly(symbol);
  const CachedMark* cached = symbol.size > 0 ? marks_.Get(mark, mark) : nullptr;
  mark_ = cached && cached->mark ? &*cached->mark : nullptr;
  const int height = symbol.label_height;
  labels_ = height > 0 ? fonts_.Get(height, InkFont(height), glyph_memory_) : nullptr;
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
