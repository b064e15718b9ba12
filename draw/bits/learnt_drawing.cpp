#include "draw/bits/learnt_drawing.h"

#include "draw/bits/line_proof.h"
#include "draw/bits/mark_proof.h"
#include "draw/bits/mark_stamp.h"

namespace tavix {
namespace {

// Whether, and how, text is smoothed, as one number.
UINT TextSmoothing() {
  BOOL on = FALSE;
  UINT type = 0;
  UINT contrast = 0;
  ::SystemParametersInfoW(SPI_GETFONTSMOOTHING, 0, &on, 0);
  ::SystemParametersInfoW(SPI_GETFONTSMOOTHINGTYPE, 0, &type, 0);
  ::SystemParametersInfoW(SPI_GETFONTSMOOTHINGCONTRAST, 0, &contrast, 0);
  return (on ? 1u : 0u) | type << 1 | contrast << 8;
}

}  // namespace

void LearntDrawing::FollowSettings() {
  const UINT smoothing = TextSmoothing();
  if (smoothing == smoothing_) return;
  smoothing_ = smoothing;
  labels_.Clear();
  blends_.clear();
}

const LineRule* LearntDrawing::Lines() {
  if (!lines_learnt_) lines_ = LearnLineRule();
  lines_learnt_ = true;
  return lines_ ? &*lines_ : nullptr;
}

LearntDrawing::LearntMark::LearntMark(const LegendStyle& style) : stamp(MakeMarkStamp(style)) {}

const Stamp* LearntDrawing::Mark(const LegendStyle& style) {
  const LegendStyle mark = MarkOnly(style);
  const LearntMark* learnt = marks_.Get(mark, mark);
  return learnt && learnt->stamp ? &*learnt->stamp : nullptr;
}

LabelGlyphs* LearntDrawing::Labels(int height, std::uint32_t color) {
  return labels_.Get({height, color}, SmoothHand(height, color, blends_[color]));
}

}  // namespace tavix
