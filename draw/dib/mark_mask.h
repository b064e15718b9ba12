// A shape of one colour, drawn many times.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "draw/dib/dib_section.h"
#include "view/coordinates.h"

namespace tavix {

// A point mark, a short line or a circle as runs of pixels.
class MarkMask {
 public:
  // The shape that shows on two pictures of the same size, drawn at the same `origin` over
  // kWhitePaper and over kBlackPaper. A pixel is in the shape where both pictures agree and out of
  // it where both show their paper. None where a pixel is neither, or the shape has two colours.
  static std::optional<MarkMask> FromPictures(const PixelBlock& over_white,
                                              const PixelBlock& over_black, ScreenPoint origin);

  static constexpr std::uint32_t kWhitePaper = 0x00FFFFFF;
  static constexpr std::uint32_t kBlackPaper = 0x00000000;

  // Draws the shape with its origin at `at`, cut at the block's edges.
  void Draw(const PixelBlock& block, ScreenPoint at) const;

  // Bytes of memory beside the object itself.
  [[nodiscard]] std::size_t Bytes() const {
    return runs_.capacity() * sizeof(Run) + longest_.capacity() * sizeof(longest_[0]);
  }

 private:
  // Pixels side by side in a row.
  struct Run {
    int x;
    int y;
    int count;
  };

  void Add(int x, int y);
  void Paint(std::uint32_t* pixels, int count) const;
  void DrawCut(const PixelBlock& block, ScreenPoint at) const;

  std::uint32_t color_ = 0;
  PixelBox box_;
  std::vector<Run> runs_;
  std::vector<std::uint32_t> longest_;  // as many pixels as the longest run has
};

}  // namespace tavix
