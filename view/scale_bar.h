// Round lengths for the present scale, and the shapes of the scale bar and the north arrow.
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

// The bar for the present view, measured along the vertical axis when a ratio was given. No bar
// when 30 pixels show a centimetre or less.
[[nodiscard]] std::optional<ScaleBar> ScaleBarOf(const CViewState& view, bool vertical);

// By how much a key press raises or lowers the datum of the side view, in metres: a round length
// near what 30 pixels show. Compatibility: its steps are not those of the scale bar.
[[nodiscard]] double DatumStep(const CViewState& view);

// True when the view is rotated by more than about 2.5 degrees. Compatibility: a smaller angle
// shows no arrow.
[[nodiscard]] bool ShowsNorthArrow(const CViewState& view);

// The arrow's polyline in the bottom left corner, rotated with the view.
[[nodiscard]] std::array<ScreenPoint, 3> NorthArrowOf(const CViewState& view);

}  // namespace tavix
