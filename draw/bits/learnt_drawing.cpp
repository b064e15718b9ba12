#include "draw/bits/learnt_drawing.h"

#include <algorithm>

#include "draw/bits/line_proof.h"
#include "draw/bits/mark_stamp.h"

namespace tavix {
namespace {

// A host that makes legends without end costs no more memory than this, and no time to learn what
// was forgotten.
constexpr std::size_t kMostMarks = 256;
constexpr std::size_t kMostFonts = 64;

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

// What the stamp depends on: not on the label.
LegendStyle MarkOnly(LegendStyle style) {
  style.prm2 = 0;
  style.prm3 = 0;
  return style;
}

}  // namespace

void LearntDrawing::FollowSettings() {
  const UINT smoothing = TextSmoothing();
  if (smoothing == smoothing_) return;
  smoothing_ = smoothing;
  labels_.clear();
  blends_.clear();
}

const LineRule* LearntDrawing::Lines() {
  if (!lines_learnt_) lines_ = LearnLineRule();
  lines_learnt_ = true;
  return lines_ ? &*lines_ : nullptr;
}

const Stamp* LearntDrawing::Mark(const LegendStyle& style) {
  const LegendStyle mark = MarkOnly(style);
  const auto same = [&](const LearntMark& learnt) { return learnt.style == mark; };
  auto found = std::find_if(marks_.begin(), marks_.end(), same);
  if (found == marks_.end()) {
    if (marks_.size() >= kMostMarks) return nullptr;
    found = marks_.insert(marks_.end(), {mark, MakeMarkStamp(mark)});
  }
  return found->stamp ? &*found->stamp : nullptr;
}

LabelGlyphs* LearntDrawing::Labels(int height, std::uint32_t color) {
  const auto same = [=](const LabelGlyphs& labels) {
    return labels.Height() == height && labels.Color() == color;
  };
  auto found = std::find_if(labels_.begin(), labels_.end(), same);
  if (found == labels_.end()) {
    if (labels_.size() >= kMostFonts) return nullptr;
    found = labels_.emplace(labels_.end(), height, color, blends_[color]);
  }
  return &*found;
}

}  // namespace tavix
