#include "tests/host/picture_image.h"

#include <windows.h>

#include <objidl.h>
// Its headers need the types of the one above.
#include <gdiplus.h>

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

}  // namespace

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
