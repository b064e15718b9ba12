// Where the OK button stands that replaces the one in the device's caption.
#pragma once

#include <windows.h>

#include <vector>

namespace tdialog {

struct OkButtonPlace {
  RECT button;      // in the client area, pixels
  int extraHeight;  // how much the client area must grow at its lower edge
};

// The lower right corner of the client area, else the upper right, if the button with `margin`
// pixels around it is clear of all items there; else a strip below everything.
OkButtonPlace PlaceOkButton(SIZE client, SIZE button, int margin, const std::vector<RECT>& items);

}  // namespace tdialog
