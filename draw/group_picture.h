// The plan view as a one-bit picture that the host reads pixel by pixel.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "draw/drawing_way.h"
#include "draw/ink/one_bit_bitmap.h"
#include "draw/plan_view.h"
#include "view/paper_frame.h"
#include "view/view_state.h"

namespace tavix {

// A picture of chosen size: 1 bit a pixel, ink for every colour but white, with a north arrow in
// the first free corner. It shows the window's ground width across its own width, or one sheet when
// the paper frame is on.
class GroupPicture {
 public:
  explicit GroupPicture(DrawingWay way = DrawingWayOfEnvironment()) : way_(way) {}

  // Whether a picture of this size takes more than 256 MiB, a square of about 46,000 pixels. Build
  // must not be called for one.
  [[nodiscard]] static bool IsTooLarge(int height, int width);

  // Draws the picture of `data`, seen through its view brought to this size, in place of one drawn
  // before. Nothing is held when the picture cannot be made. True when the scale was cut to its
  // cap.
  bool Build(const PlotData& data, const PaperFrame& frame, int height, int width);

  // Whether the pixel is ink; rows count from the top. While the frame's outline shows, the two
  // outermost rows and columns are always ink. Pixels outside of the picture are white, and so are
  // all without a picture.
  //
  // Compatibility: the border goes on outside of the picture: rows above it and columns left of it
  // are ink, and the border's columns are so in rows below. Only columns right of it never are.
  [[nodiscard]] bool IsInk(const PaperFrame& frame, int row, int column) const {
    if (!bits_ || column >= width_) return false;
    if (frame.IsShown() && IsOnBorder(row, column)) return true;
    if (row < 0 || row >= height_ || column < 0) return false;
    const auto line = static_cast<std::size_t>(height_ - row - 1);
    const std::uint8_t byte = bits_[line * stride_ + static_cast<std::size_t>(column) / 8];
    return (byte >> (7 - column % 8) & 1) != 0;
  }

  void Release();

 private:
  [[nodiscard]] bool IsOnBorder(int row, int column) const {
    return row <= 1 || row == height_ - 2 || row == height_ - 1 || column <= 1 ||
           column >= width_ - 2;
  }
  [[nodiscard]] bool HasInk(const PaperFrame& frame, int first_row, int first_column) const;
  [[nodiscard]] ScreenPoint FindFreeCorner(const PaperFrame& frame) const;

  DrawingWay way_;
  int height_ = 0;
  int width_ = 0;
  std::size_t stride_ = 0;  // bytes a row
  std::unique_ptr<OneBitBitmap> bitmap_;
  const std::uint8_t* bits_ = nullptr;  // rows from the bottom up, most significant bit first
};

}  // namespace tavix
