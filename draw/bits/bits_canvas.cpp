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
  style_ = style;
  pending_ = Pending::kLineStyle;
  const bool can_step = IsOnePixelPen(style) && IsPlainColor(style.color);
  lines_ = can_step ? learnt_.Lines() : nullptr;
  line_color_ = PixelOf(style.color);
}

void BitsCanvas::Line(const ScreenSegment& segment) {
  if (lines_ && IsNear(segment.start) && IsNear(segment.end)) {
    StepLine(Bits(), *lines_, segment, line_color_);
  } else {
    Plain().Line(segment);
  }
}

void BitsCanvas::Circle(ScreenPoint centre, int radius) { Plain().Circle(centre, radius); }

void BitsCanvas::UsePointStyle(const LegendStyle& style) {
  style_ = style;
  pending_ = Pending::kPointStyle;
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
  labels_ = style_.prm2 > 0 ? learnt_.Labels(style_.prm2, text_color_) : nullptr;
}

void BitsCanvas::Mark(ScreenPoint at) {
  if (mark_) {
    mark_->Draw(Bits(), at);
  } else {
    Plain().Mark(at);
  }
}

void BitsCanvas::Label(ScreenPoint at, NameView text) {
  const LabelBox box = PlaceLabel(at, style_.prm1, style_.prm2, static_cast<int>(text.size()));
  if (!labels_ || !labels_->Draw(Bits(), {box.left, box.top}, text)) Plain().Label(at, text);
}

PlanCanvas& BitsCanvas::Plain() {
  if (pending_ == Pending::kLineStyle) plain_.UseLineStyle(style_);
  if (pending_ == Pending::kPointStyle) plain_.UsePointStyle(style_);
  pending_ = Pending::kNothing;
  may_lag_ = true;
  return plain_;
}

const PixelBlock& BitsCanvas::Bits() {
  if (may_lag_) ::GdiFlush();
  may_lag_ = false;
  return block_;
}

}  // namespace tavix
