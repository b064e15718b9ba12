// Where a dialog and its OK button are placed, and the font with which the dialog fits the screen.
// Pure decisions: sizes and rectangles in pixels, no windows.
#pragma once

#include <functional>
#include <vector>

namespace tdialog {

struct PixelSize {
  int width;
  int height;
};

// Right and bottom lie outside.
struct PixelRect {
  int left;
  int top;
  int right;
  int bottom;

  friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

// ---- The dialog

// The font size of a dialog whose template asks for `points`: that size, or the largest below it
// with which the dialog fits into `room`. Text of less than five points is unreadable: a dialog
// that does not fit at five points gets five, or its own size if that is smaller still.
int FittingPoints(int points, PixelSize room,
                  const std::function<PixelSize(int points)>& size_with);

// `window` moved by the shortest way inside `area`. Where it is too large, its left and upper edges
// are those of the area.
PixelRect MovedInside(PixelRect window, PixelRect area);

// ---- The OK button, which replaces the one in the caption on the device

struct OkButtonPlace {
  PixelRect button;  // in the client area
  int extraHeight;   // by how much the client area must grow at its lower edge
};

// The lower right corner of the client area, or else the upper right one, if the button with
// `margin` pixels around it covers none of `items` there; or else a strip below the client area.
OkButtonPlace PlaceOkButton(PixelSize client, PixelSize button, int margin,
                            const std::vector<PixelRect>& items);

}  // namespace tdialog
