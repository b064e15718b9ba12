#include "draw/dib/learnt_drawing.h"

#include "draw/dib/line_proof.h"
#include "draw/dib/mark_proof.h"
#include "draw/dib/mark_stamp.h"

namespace tavix {

LearntDrawing::LearntMark::LearntMark(const PointSymbol& symbol) : stamp(MakeMarkStamp(symbol)) {}

LearntDrawing::LearntLabels::LearntLabels(const SmoothHand& hand)
    : glyphs(hand), font(FontLook::OfLabels(hand.Height())) {}

void LearntDrawing::FollowSettings(const ScreenLook& look) {
  labels_.ForEach([](LearntLabels& labels) { labels.followed = false; });
  if (look == look_) return;
  if (look.depth != look_.depth) {
    lines_learnt_ = false;
    marks_.Clear();
  }
  look_ = look;
  labels_.Clear();
  blends_.clear();
}

const LineRule* LearntDrawing::Lines() {
  if (!lines_learnt_) lines_ = LearnLineRule();
  lines_learnt_ = true;
  return lines_ ? &*lines_ : nullptr;
}

const Stamp* LearntDrawing::Mark(const PointSymbol& symbol) {
  const PointSymbol mark = MarkOnly(symbol);
  const LearntMark* learnt = marks_.Get(mark, mark);
  return learnt && learnt->stamp ? &*learnt->stamp : nullptr;
}

LabelGlyphs* LearntDrawing::Labels(int height, std::uint32_t color) {
  const LabelKey key{height, color};
  const SmoothHand hand(height, color, blends_[color]);
  LearntLabels* learnt = labels_.Get(key, hand);
  if (learnt && !learnt->followed) {
    learnt->followed = true;
    if (learnt->font != FontLook::OfLabels(height)) {
      labels_.Remove(key);
      learnt = labels_.Get(key, hand);
    }
  }
  return learnt ? &learnt->glyphs : nullptr;
}

}  // namespace tavix
