#include "tests/host/support/picture_image.h"

#include <windows.h>

#include <objidl.h>
// Its headers need the types of the one above.
#include <gdiplus.h>

#include <fstream>
#include <iterator>
#include <string>

namespace fieldhost {
namespace {

PictureImage PixelsOf(Gdiplus::Bitmap& bitmap) {
  PictureImage image;
  if (bitmap.GetLastStatus() != Gdiplus::Ok) return image;
  image.width = static_cast<int>(bitmap.GetWidth());
  image.height = static_cast<int>(bitmap.GetHeight());
  for (int y = 0; y < image.height; ++y) {
    for (int x = 0; x < image.width; ++x) {
      Gdiplus::Color color;
      bitmap.GetPixel(x, y, &color);
      image.pixels.push_back(color.GetValue());
    }
  }
  return image;
}

// Four bytes, the highest first.
std::uint32_t NumberAt(const std::string& bytes, std::size_t at) {
  std::uint32_t number = 0;
  for (const char byte : bytes.substr(at, 4))
    number = number << 8U | static_cast<std::uint8_t>(byte);
  return number;
}

}  // namespace

// The chunk: its name, pixels a metre across and down, and 1 for metres.
std::uint32_t PixelsPerMetre(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  const std::size_t chunk = bytes.find("pHYs");
  if (chunk == std::string::npos || chunk + 13 > bytes.size() || bytes[chunk + 12] != 1 ||
      NumberAt(bytes, chunk + 4) != NumberAt(bytes, chunk + 8)) {
    return 0;
  }
  return NumberAt(bytes, chunk + 4);
}

PictureImage DecodePicture(const std::filesystem::path& file) {
  const Gdiplus::GdiplusStartupInput input;
  ULONG_PTR token = 0;
  if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) return {};
  PictureImage image;
  {
    Gdiplus::Bitmap bitmap(file.c_str());
    image = PixelsOf(bitmap);
  }
  Gdiplus::GdiplusShutdown(token);
  return image;
}

}  // namespace fieldhost
