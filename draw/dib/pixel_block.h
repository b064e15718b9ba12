// Pixels in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

namespace tavix {

// The pixels of a 32-bit bitmap section, owned by the bitmap: 0x00RRGGBB, rows from the top, end to
// end. `pixels` is null where a bitmap has none that may be reached.
struct PixelBlock {
  std::uint32_t* pixels = nullptr;
  int width = 0;
  int height = 0;

  [[nodiscard]] bool Holds(int x, int y) const {
    return x >= 0 && y >= 0 && x < width && y < height;
  }

  [[nodiscard]] std::uint32_t* At(int x, int y) const {
    return pixels + static_cast<std::ptrdiff_t>(y) * width + x;
  }

  // What a pixel becomes that is drawn in a colour of 0x00BBGGRR; none for palette indices and the
  // like, which have a high byte.
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

}  // namespace tavix
