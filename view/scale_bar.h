// The scale bar and the north arrow: their shapes, which somebody else draws.
#pragma once

#include <array>
#include <optional>

#include "view/view_state.h"

namespace tavix {

// The vertical bracket at the left edge.
struct ScaleBar {
  double value = 0.0;  // the ground length it stands for, metres
  int length = 0;      // on the screen, pixels
};

// The bar for the present view, measured along the vertical axis when a ratio was given. None when
// 30 pixels show a centimetre or less.
[[nodiscard]] std::optional<ScaleBar> ScaleBarOf(const CViewState& view, bool vertical);

// True when the view is turned by more than about 2.5 degrees. Compatibility: a smaller turn shows
// no arrow.
[[nodiscard]] bool ShowsNorthArrow(const CViewState& view);

// The arrow's polyline in the bottom left corner, turned with the view.
[[nodiscard]] std::array<ScreenPoint, 3> NorthArrowOf(const CViewState& view);

}  // namespace tavix
