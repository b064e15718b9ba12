// One-bit pictures in memory, and shapes of ink in them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "draw/dib/bresenham.h"
#include "view/coordinates.h"

namespace tavix {

// The colour of a legend in a picture that knows only ink and white: white stays white, with
// whatever high byte, and any other becomes black.
inline std::int32_t InkColor(std::int32_t color) {
  constexpr std::int32_t kWhite = 0x00FFFFFF;
  constexpr std::int32_t kBlack = 0;
  return (color & kWhite) == kWhite ? color : kBlack;
}

// The pixels of a one-bit DIB section, owned by the bitmap: rows from the bottom up, the most
// significant bit first. A bit that is set is ink.
struct InkBlock {
  std::uint8_t* rows = nullptr;
  int width = 0;
  int height = 0;
  std::size_t stride = 0;  // bytes a row

  // Makes pixels (x, y) to (x + count - 1, y), y from the top, ink or paper. All lie inside, count
  // is above 0.
  void Fill(int x, int y, int count, bool ink) const {
    std::uint8_t* const row = rows + static_cast<std::size_t>(height - 1 - y) * stride;
    const int last = x + count - 1;
    auto mask = static_cast<std::uint8_t>(0xFF >> (x & 7));
    int byte = x >> 3;
    for (; byte < last >> 3; ++byte) {
      Set(row[byte], mask, ink);
      mask = 0xFF;
    }
    Set(row[byte], static_cast<std::uint8_t>(mask & 0xFF << (7 - (last & 7))), ink);
  }

  [[nodiscard]] bool Holds(int x, int y) const {
    return x >= 0 && y >= 0 && x < width && y < height;
  }

  // The pixel value of black or white, 1 or 0; other colours are left to GDI.
  [[nodiscard]] static std::optional<std::uint32_t> ValueOf(std::int32_t color) {
    constexpr std::int32_t kBlack = 0;
    constexpr std::int32_t kWhite = 0x00FFFFFF;
    if (color == kBlack) return 1;
    if (color == kWhite) return 0;
    return std::nullopt;
  }

  // Whether a pixel inside has a value.
  [[nodiscard]] bool Has(int x, int y, std::uint32_t value) const {
    return IsInk(x, y) == (value != 0);
  }

  [[nodiscard]] bool IsInk(int x, int y) const {
    const std::uint8_t* const row = rows + static_cast<std::size_t>(height - 1 - y) * stride;
    return (row[x >> 3] >> (7 - (x & 7)) & 1) != 0;
  }

 private:
  static void Set(std::uint8_t& byte, std::uint8_t mask, bool ink) {
    byte = static_cast<std::uint8_t>(ink ? byte | mask : byte & ~mask);
  }
};

// Draws the line from its start up to its end, the end's own pixel left out, cut at the block's
// edges, in ink (1) or in white (0). It is near, see IsNear.
void StepLine(const InkBlock& block, const TieRule& rule, const ScreenSegment& segment,
              std::uint32_t value);

// A shape of ink, drawn many times.
class InkMask {
 public:
  // All ink of a picture, relative to `origin`.
  static InkMask FromPicture(const InkBlock& picture, ScreenPoint origin);

  // Draws the shape in ink, or in white, with its origin at `at`, cut at the block's edges. `at` is
  // so near to the block that no sum of pixels leaves the 32-bit range.
  void Draw(const InkBlock& block, ScreenPoint at, bool ink) const;

  // Bytes of memory beside the object itself.
  [[nodiscard]] std::size_t Bytes() const { return runs_.capacity() * sizeof(Run); }

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
