// What is known of the system's own drawing.
#pragma once

#include <cstdint>
#include <map>
#include <optional>

#include "draw/dib/few_looks.h"
#include "draw/dib/label_glyphs.h"
#include "draw/dib/line_rule.h"
#include "draw/dib/smooth_blend.h"
#include "draw/dib/stamp.h"
#include "draw/dib/system_look.h"
#include "store/symbols.h"

namespace tavix {

// Learns from the system how it draws as that is needed, each thing once, and keeps it for the
// redraws to come. Whatever it hands out has been compared with the system's own drawing; null
// stands for what is to be left to the system: what is not the same everywhere, and what comes
// after very many others. A pointer is valid until FollowSettings is called or the object
// destroyed.
class LearntDrawing {
 public:
  LearntDrawing() = default;
  LearntDrawing(const LearntDrawing&) = delete;
  LearntDrawing& operator=(const LearntDrawing&) = delete;

  // To be called before a redraw: what has another look since the last one is learnt again. That is
  // text when its smoothing has changed, a label's height when the system takes another font for
  // it, and everything when the screen has other colours.
  void FollowSettings(const ScreenLook& look = ScreenLook::Now());

  // Solid lines of one pixel.
  [[nodiscard]] const LineRule* Lines();

  // The mark of a symbol.
  [[nodiscard]] const Stamp* Mark(const PointSymbol& symbol);

  // Labels of this height in pixels and this colour.
  [[nodiscard]] LabelGlyphs* Labels(int height, std::uint32_t color = 0);

 private:
  struct LearntMark {
    explicit LearntMark(const PointSymbol& symbol);
    std::optional<Stamp> stamp;
  };

  // A height and a colour.
  using LabelKey = std::pair<int, std::uint32_t>;

  struct LearntLabels {
    explicit LearntLabels(const SmoothHand& hand);

    LabelGlyphs glyphs;
    FontLook font;
    bool followed = true;  // the font has been looked at since FollowSettings
  };

  bool lines_learnt_ = false;
  std::optional<LineRule> lines_;
  FewLooks<PointSymbol, LearntMark, kMostMarks> marks_;
  std::map<std::uint32_t, SmoothBlend> blends_;  // by the text's colour
  FewLooks<LabelKey, LearntLabels, kMostFonts> labels_;
  ScreenLook look_;
};

}  // namespace tavix
