#include "host/pictures/one_bit_writer.h"

#include <afxwin.h>

#include <algorithm>
#include <fstream>

#include "host/pictures/gdi_plus.h"

namespace fieldhost {
namespace {

bool CopyRows(const OneBitPicture& picture, Gdiplus::Bitmap& bitmap) {
  const Gdiplus::Rect all(0, 0, picture.Width(), picture.Height());
  Gdiplus::BitmapData data;
  if (bitmap.LockBits(&all, Gdiplus::ImageLockModeWrite, PixelFormat1bppIndexed, &data) !=
      Gdiplus::Ok) {
    return false;
  }
  auto* to = static_cast<std::uint8_t*>(data.Scan0);
  for (int row = 0; row < picture.Height(); ++row, to += data.Stride) {
    std::copy_n(picture.Row(row), picture.Stride(), to);
  }
  return bitmap.UnlockBits(&data) == Gdiplus::Ok;
}

bool WritePng(const OneBitPicture& picture, int resolution, const std::filesystem::path& file) {
  const GdiPlus gdi_plus;
  if (!gdi_plus.HasStarted()) return false;
  Gdiplus::Bitmap bitmap(picture.Width(), picture.Height(), PixelFormat1bppIndexed);
  struct {
    UINT flags;
    UINT count;
    Gdiplus::ARGB entries[2];
  } palette{Gdiplus::PaletteFlagsGrayScale, 2, {Gdiplus::Color::White, Gdiplus::Color::Black}};
  return bitmap.SetPalette(reinterpret_cast<Gdiplus::ColorPalette*>(&palette)) == Gdiplus::Ok &&
         CopyRows(picture, bitmap) && SavePng(bitmap, resolution, file);
}

bool WritePbm(const OneBitPicture& picture, const std::filesystem::path& path) {
  const std::string bytes = PortableBitmap(picture);
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  return file.good();
}

}  // namespace

bool WriteOneBitPicture(const OneBitPicture& picture, OneBitFormat format, int resolution,
                        const std::filesystem::path& file) {
  return format == OneBitFormat::kPng ? WritePng(picture, resolution, file)
                                      : WritePbm(picture, file);
}

}  // namespace fieldhost
