// A 32-bit DIB section and its pixels.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

class CBitmap;
class CDC;

namespace tavix {

// The pixels of a 32-bit DIB section, owned by the bitmap: 0x00RRGGBB, rows from the top, end to
// end. `pixels` is null for a bitmap whose pixels cannot be reached.
struct PixelBlock {
  std::uint32_t* pixels = nullptr;
  int width = 0;
  int height = 0;

  [[nodiscard]] bool Holds(int x, int y) const {
    return x >= 0 && y >= 0 && x < width && y < height;
  }

  // Whether a pixel inside has a neighbour outside.
  [[nodiscard]] bool IsEdge(int x, int y) const {
    return x == 0 || y == 0 || x == width - 1 || y == height - 1;
  }

  [[nodiscard]] std::uint32_t* At(int x, int y) const {
    return pixels + static_cast<std::ptrdiff_t>(y) * width + x;
  }

  // The pixel value of a COLORREF, 0x00BBGGRR; none for palette indices and the like, which have a
  // high byte.
  [[nodiscard]] static std::optional<std::uint32_t> ValueOf(std::int32_t color) {
    const auto value = static_cast<std::uint32_t>(color);
    if (value >> 24 != 0) return std::nullopt;
    return (value & 0xFF) << 16 | (value & 0xFF00) | value >> 16;
  }

  // Whether a pixel inside has a value.
  [[nodiscard]] bool Has(int x, int y, std::uint32_t value) const { return *At(x, y) == value; }

  [[nodiscard]] std::size_t Count() const {
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  }
};

// A rectangle of pixels relative to where something is drawn; right and bottom lie one beyond.
struct PixelBox {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  // Whether all of it is inside of `block` when drawn at (x, y).
  [[nodiscard]] bool Fits(const PixelBlock& block, int x, int y) const {
    return x + left >= 0 && y + top >= 0 && x + right <= block.width && y + bottom <= block.height;
  }
};

// Makes `bitmap` a 32-bit DIB section for device contexts like `dc`; it owns the pixels returned.
// Null pixels, and `bitmap` as it was, where a bitmap compatible with `dc` would have another depth
// or there is no memory.
[[nodiscard]] PixelBlock CreateDib(CDC& dc, int width, int height, CBitmap& bitmap);

}  // namespace tavix
