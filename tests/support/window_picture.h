// Pixels, as they are on a window or in a device context.
#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <vector>

namespace tavix::test {

struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;  // 0x00RRGGBB, rows from the top

  [[nodiscard]] std::uint32_t At(int x, int y) const {
    return pixels.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                     static_cast<std::size_t>(x));
  }

  friend bool operator==(const Picture&, const Picture&) = default;
};

// The pixels of `dc` from (0, 0) on.
[[nodiscard]] Picture TakePicture(HDC dc, int width, int height);

// What a window shows in its client area at this moment; nothing is painted first.
[[nodiscard]] Picture TakeClientPicture(HWND window);

// The left `width` columns.
[[nodiscard]] Picture LeftPart(const Picture& picture, int width);

// How many pixels have this colour, 0x00RRGGBB.
[[nodiscard]] int CountPixels(const Picture& picture, std::uint32_t color);

// As a bitmap file of 32 bits a pixel.
void WriteBmp(const std::filesystem::path& path, const Picture& picture);

}  // namespace tavix::test
