#include "tests/support/window_picture.h"

#include <algorithm>
#include <fstream>

namespace tavix::test {
namespace {

constexpr std::uint32_t kColorBits = 0x00FFFFFF;  // the fourth byte is left to chance

}  // namespace

Picture TakePicture(HDC dc, int width, int height) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;  // rows from the top
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  const HDC memory = ::CreateCompatibleDC(dc);
  const HBITMAP bitmap = ::CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  const HGDIOBJ old = ::SelectObject(memory, bitmap);
  ::BitBlt(memory, 0, 0, width, height, dc, 0, 0, SRCCOPY);
  ::GdiFlush();

  Picture picture{width, height, {}};
  const auto* first = static_cast<const std::uint32_t*>(bits);
  picture.pixels.assign(first,
                        first + static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  for (std::uint32_t& pixel : picture.pixels) pixel &= kColorBits;
  ::SelectObject(memory, old);
  ::DeleteObject(bitmap);
  ::DeleteDC(memory);
  return picture;
}

Picture TakeClientPicture(HWND window) {
  RECT client;
  ::GetClientRect(window, &client);
  const HDC dc = ::GetDC(window);
  Picture picture = TakePicture(dc, client.right, client.bottom);
  ::ReleaseDC(window, dc);
  return picture;
}

Picture LeftPart(const Picture& picture, int width) {
  Picture part{width, picture.height, {}};
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < width; ++x) part.pixels.push_back(picture.At(x, y));
  }
  return part;
}

int CountPixels(const Picture& picture, std::uint32_t color) {
  return static_cast<int>(std::count(picture.pixels.begin(), picture.pixels.end(), color));
}

void WriteBmp(const std::filesystem::path& path, const Picture& picture) {
  BITMAPINFOHEADER info{};
  info.biSize = sizeof info;
  info.biWidth = picture.width;
  info.biHeight = -picture.height;
  info.biPlanes = 1;
  info.biBitCount = 32;
  const std::size_t size = picture.pixels.size() * sizeof picture.pixels[0];
  BITMAPFILEHEADER file{};
  file.bfType = 0x4D42;  // "BM"
  file.bfOffBits = sizeof file + sizeof info;
  file.bfSize = file.bfOffBits + static_cast<DWORD>(size);
  std::ofstream out(path, std::ios::binary);
  out.write(reinterpret_cast<const char*>(&file), sizeof file);
  out.write(reinterpret_cast<const char*>(&info), sizeof info);
  out.write(reinterpret_cast<const char*>(picture.pixels.data()),
            static_cast<std::streamsize>(size));
}

}  // namespace tavix::test
