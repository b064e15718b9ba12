// A rectangle of the screen.
#pragma once

namespace tavix {

// In pixels, borders included.
struct ScreenBox {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};

}  // namespace tavix
