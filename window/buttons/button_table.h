// The buttons of the column, from the top down.
#pragma once

#include <array>
#include <cstddef>

// All that names a button: its control id, its name, and the first of the two bitmaps of a button
// that stays pressed in (0 for any other). The id is also the first of its four bitmaps: up, down,
// focused, disabled. Ids are known to hosts and stay; 445..448 and 453..456 are free.
//
// The name leads to the picture, which buttons.txt states in small letters (band_zoom), and
// to what the button does, ButtonCommands::OnBandZoom. The first button and the last scroll the
// column.
#define TAVIX_BUTTONS(BUTTON) \
  BUTTON(401, ScrollUp, 0)    \
  BUTTON(405, BandZoom, 451)  \
  BUTTON(409, ZoomIn, 0)      \
  BUTTON(413, ZoomOut, 0)     \
  BUTTON(417, WholeView, 0)   \
  BUTTON(421, Pan, 449)       \
  BUTTON(425, Refresh, 0)     \
  BUTTON(429, Settings, 0)    \
  BUTTON(433, Rotate, 0)      \
  BUTTON(437, RotateBack, 0)  \
  BUTTON(441, ScrollDown, 0)

namespace tavix {

struct ButtonRow {
  unsigned id;
  unsigned pressed_in;  // its focused bitmap while it stays pressed in; the disabled one follows
};

#define TAVIX_BUTTON_ROW(id, name, pressed_in) ButtonRow{(id), (pressed_in)},
inline constexpr std::array kButtonTable{TAVIX_BUTTONS(TAVIX_BUTTON_ROW)};
#undef TAVIX_BUTTON_ROW

// kBandZoomButton and so on.
enum ButtonId : unsigned {
#define TAVIX_BUTTON_ID(id, name, pressed_in) k##name##Button = (id),
  TAVIX_BUTTONS(TAVIX_BUTTON_ID)
#undef TAVIX_BUTTON_ID
};

}  // namespace tavix
