// How a dialog comes to stand on the screen with all of it to be seen.
#pragma once

#include <functional>

namespace tdialog {

// Pixels.
struct PixelSize {
  int width;
  int height;
};

struct PixelRect {
  int left;
  int top;
  int right;
  int bottom;

  friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

// The font size of a dialog whose template asks for `points`: that one, or the largest below it
// with which the dialog fits into `room`. Text of less than five points cannot be read: a dialog
// that does not fit with it either gets five, or its own size if that is smaller still.
int FittingPoints(int points, PixelSize room,
                  const std::function<PixelSize(int points)>& size_with);

// `window` moved as little as puts it inside `area`. Where it is too large, its left and upper
// edges are the area's.
PixelRect MovedInside(PixelRect window, PixelRect area);

}  // namespace tdialog
