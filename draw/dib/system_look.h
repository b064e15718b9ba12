// What the look of the system's own drawing depends on and a user can change while windows live.
#pragma once

#include <windows.h>

#include <string>

namespace tavix {

// Looked at again and again, for the messages that tell of a change go to top-level windows only,
// and not every host hands them on.
struct ScreenLook {
  UINT smoothing = 0;  // of text: whether, and how, as one number
  int depth = 0;       // bits of a pixel, a second old at most

  [[nodiscard]] static ScreenLook Now();

  friend bool operator==(const ScreenLook&, const ScreenLook&) = default;
};

// Which font the system takes for labels of a height: another one when fonts come and go, or when
// another one is put in the place of the default face.
struct FontLook {
  std::wstring face;
  DWORD check_sum = 0;  // of the font's file
  LONG height = 0;      // pixels, like the others
  LONG ascent = 0;
  LONG average_width = 0;
  LONG largest_width = 0;
  LONG weight = 0;

  [[nodiscard]] static FontLook OfLabels(int height);

  friend bool operator==(const FontLook&, const FontLook&) = default;
};

}  // namespace tavix
