#include "draw/bits/bits_canvas.h"

#include "draw/point_label.h"

namespace tavix {
namespace {

// Palette indices and the like have a high byte.
bool IsPlainColor(std::int32_t color) { return (static_cast<std::uint32_t>(color) >> 24) == 0; }

bool IsOnePixelPen(const LegendStyle& style) { return style.width == 0 || style.width == 1; }

// 0x00BBGGRR as 0x00RRGGBB.
std::uint32_t PixelOf(std::int32_t color) {
  const auto value = static_cast<std::uint32_t>(color);
  return (value & 0xFF) << 16 | (value & 0xFF00) | (value >> 16 & 0xFF);
}

bool IsNear(ScreenPoint at) {
  return at.x >= -kFarthestStep && at.x <= kFarthestStep && at.y >= -kFarthestStep &&
         at.y <= kFarthestStep;
}

}  // namespace

BitsCanvas::BitsCanvas(CDC& dc, const PixelBlock& block, LearntDrawing& learnt)
    : plain_(dc), block_(block), learnt_(learnt), text_color_(dc.GetTextColor()) {
  learnt_.FollowSettings();
}

void BitsCanvas::UseLineStyle(const LegendStyle& style) {
  plain_.UseLineStyle(style);
  const bool can_step = IsOnePixelPen(style) && IsPlainColor(style.color);
  lines_ = can_step ? learnt_.Lines() : nullptr;
  line_color_ = PixelOf(style.color);
}

void BitsCanvas::Line(const ScreenSegment& segment) {
  if (lines_ && IsNear(segment.start) && IsNear(segment.end)) {
    StepLine(Bits(), *lines_, segment, line_color_);
  } else {
    plain_.Canvas().Line(segment);
  }
}

void BitsCanvas::Circle(ScreenPoint centre, int radius) { plain_.Canvas().Circle(centre, radius); }

void BitsCanvas::UsePointStyle(const LegendStyle& style) {
  plain_.UsePointStyle(style);
  mark_ = style.prm1 > 0 ? learnt_.Mark(style) : nullptr;
  LookUpLabels();
}

void BitsCanvas::UseTextColor(std::uint32_t color) {
  if (color == text_color_) return;
  text_color_ = color;
  plain_.UseTextColor(color);
  LookUpLabels();
}

void BitsCanvas::LookUpLabels() {
  const int height = plain_.Style().prm2;
  labels_ = height > 0 ? learnt_.Labels(height, text_color_) : nullptr;
}

void BitsCanvas::Mark(ScreenPoint at) {
  if (mark_) {
    mark_->Draw(Bits(), at);
  } else {
    plain_.Canvas().Mark(at);
  }
}

void BitsCanvas::Label(ScreenPoint at, NameView text) {
  const LegendStyle& style = plain_.Style();
  const LabelBox box = PlaceLabel(at, style.prm1, style.prm2, static_cast<int>(text.size()));
  if (!labels_ || !labels_->Draw(Bits(), {box.left, box.top}, text))
    plain_.Canvas().Label(at, text);
}

const PixelBlock& BitsCanvas::Bits() {
  plain_.Settle();
  return block_;
}

}  // namespace tavix
