// The plan as a one-bit picture, as the host asks for it.
#pragma once

#include <memory>

namespace tavix {

class GroupPicture;
class PlotDisplay;

class OneBitPlot {
 public:
  explicit OneBitPlot(PlotDisplay& display);
  ~OneBitPlot();
  OneBitPlot(const OneBitPlot&) = delete;
  OneBitPlot& operator=(const OneBitPlot&) = delete;

  // Frees the picture held before, and draws one of this size. 0, or -1 when it would be too large.
  int Build(int height, int width);

  // See GroupPicture::IsInk.
  [[nodiscard]] bool IsInk(int row, int column) const;

  void Release();

 private:
  PlotDisplay& display_;
  std::unique_ptr<GroupPicture> picture_;
};

}  // namespace tavix
