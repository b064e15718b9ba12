// The plan as a one-bit picture, as the host asks for it.
#pragma once

#include "draw/group_picture.h"

namespace tavix {

class PlotDisplay;

class OneBitPlot {
 public:
  explicit OneBitPlot(PlotDisplay& display);

  // Frees the picture held before, and draws one of this size. 0, or -1 when it would be too large.
  int Build(int height, int width);

  // See GroupPicture::IsInk.
  [[nodiscard]] bool IsInk(int row, int column) const {
    return picture_.IsInk(frame_, row, column);
  }

  void Release() { picture_.Release(); }

 private:
  PlotDisplay& display_;
  const PaperFrame& frame_;
  GroupPicture picture_;
};

}  // namespace tavix
