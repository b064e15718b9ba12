// A PNG file, decoded by the system.
#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

namespace fieldhost {

struct PictureImage {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;  // 0xAARRGGBB, rows from the top

  [[nodiscard]] std::uint32_t At(int x, int y) const {
    return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                  static_cast<std::size_t>(x)];
  }
};

// The resolution that a PNG file notes, when it is the same both ways and in metres; else 0.
[[nodiscard]] std::uint32_t PixelsPerMetre(const std::filesystem::path& file);

// Empty when the file is no picture.
[[nodiscard]] PictureImage DecodePicture(const std::filesystem::path& file);

}  // namespace fieldhost
