// A shape of ink, to be drawn many times.
#pragma once

#include <vector>

#include "draw/ink/ink_block.h"
#include "view/coordinates.h"

namespace tavix {

class InkShape {
 public:
  // All ink of a picture, relative to `origin`.
  static InkShape FromPicture(const InkBlock& picture, ScreenPoint origin);

  // Draws the shape in ink, or takes ink away in its place, with its origin at `at`, cut at the
  // block's edges. `at` is so near to the block that no sum of pixels leaves the 32-bit range.
  void Draw(const InkBlock& block, ScreenPoint at, bool ink) const;

 private:
  // Pixels side by side in a row.
  struct Run {
    int x;
    int y;
    int count;
  };

  std::vector<Run> runs_;
};

}  // namespace tavix
