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

// What the stamp depends on: not on the label.
LegendStyle MarkOnly(LegendStyle style) {
  style.prm2 = 0;
  style.prm3 = 0;
  return style;
}

}  // namespace

LearntDrawing::LearntLabels::LearntLabels(int height, SmoothBlend& blend)
    : glyphs(height, blend), font(FontLook::OfLabels(height)) {}

void LearntDrawing::FollowSettings(const ScreenLook& look) {
  for (LearntLabels& labels : labels_) labels.followed = false;
  if (look == look_) return;
  if (look.depth != look_.depth) {
    lines_learnt_ = false;
    marks_.clear();
  }
  look_ = look;
  labels_.clear();
  blend_.Forget();
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

LabelGlyphs* LearntDrawing::Labels(int height) {
  const auto same = [=](const LearntLabels& labels) { return labels.glyphs.Height() == height; };
  auto found = std::find_if(labels_.begin(), labels_.end(), same);
  if (found != labels_.end() && !found->followed) {
    found->followed = true;
    if (found->font != FontLook::OfLabels(height)) {
      labels_.erase(found);
      found = labels_.end();
    }
  }
  if (found == labels_.end()) {
    if (labels_.size() >= kMostFonts) return nullptr;
    found = labels_.emplace(labels_.end(), height, blend_);
  }
  return &found->glyphs;
}

}  // namespace tavix
