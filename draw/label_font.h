// The font of labels.
#pragma once

#include <windows.h>

namespace tavix {

// A font of `height` pixels in the system's default face for Japanese text.
inline LOGFONTW LabelFont(int height) {
  LOGFONTW font{};
  font.lfHeight = height;
  font.lfWeight = FW_NORMAL;
  font.lfCharSet = SHIFTJIS_CHARSET;
  return font;
}

}  // namespace tavix
