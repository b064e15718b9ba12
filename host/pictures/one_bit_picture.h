// One-bit pictures: ink and paper, and the formats of their files.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fieldhost {

// Rows run from the top, eight pixels a byte, the leftmost in the highest bit; a set bit is ink.
// The bits behind the last pixel of a row are not set.
class OneBitPicture {
 public:
  // All paper. Sides in pixels, neither negative.
  OneBitPicture(int width, int height)
      : width_(width),
        height_(height),
        stride_((static_cast<std::size_t>(width) + 7) / 8),
        rows_(stride_ * static_cast<std::size_t>(height)) {}

  [[nodiscard]] int Width() const { return width_; }
  [[nodiscard]] int Height() const { return height_; }
  // Bytes a row.
  [[nodiscard]] std::size_t Stride() const { return stride_; }
  [[nodiscard]] const std::vector<std::uint8_t>& Rows() const { return rows_; }
  [[nodiscard]] const std::uint8_t* Row(int row) const {
    return rows_.data() + stride_ * static_cast<std::size_t>(row);
  }

  // The pixel must lie in the picture.
  void SetInk(int row, int column) {
    const std::size_t byte =
        stride_ * static_cast<std::size_t>(row) + static_cast<std::size_t>(column) / 8;
    rows_[byte] = static_cast<std::uint8_t>(rows_[byte] | 0x80U >> (column % 8));
  }

 private:
  int width_;
  int height_;
  std::size_t stride_;
  std::vector<std::uint8_t> rows_;
};

enum class OneBitFormat {
  kPng,
  kPbm,  // portable bitmap, the raw form
};

// By the ending of the file's name, in upper or lower case.
[[nodiscard]] std::optional<OneBitFormat> OneBitFormatOf(std::string_view file_name);

// The bytes of a portable bitmap file: "P4", the sides in digits, then the rows.
[[nodiscard]] std::string PortableBitmap(const OneBitPicture& picture);

}  // namespace fieldhost
