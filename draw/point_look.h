// How the points of one legend look.
#pragma once

#include <cstdint>

#include "draw/drawn_size.h"
#include "draw/legend_lookup.h"
#include "view/view_state.h"

namespace tavix {

// The style of one legend entry at a time, its sizes held within what can be drawn.
class PointLook {
 public:
  PointLook(const CViewState& view, const LegendTable& legend) : view_(view), entry_(legend) {}

  // Makes `legend` the current entry. True when it has changed.
  bool Use(std::int16_t legend) {
    if (!entry_.Use(legend)) return false;
    style_ = DrawnPointStyle(entry_.Style());
    margin_ = view_.PixelsToLength(style_.prm1);
    return true;
  }

  [[nodiscard]] const LegendStyle& Style() const { return style_; }

  // How far a mark of this entry reaches on the ground, in metres.
  [[nodiscard]] double Margin() const { return margin_; }

 private:
  const CViewState& view_;
  LegendLookup entry_;
  LegendStyle style_;
  double margin_ = 0.0;
};

}  // namespace tavix
