#include "host/pictures/picture_writer.h"

#include <framework/scoped_select.h>
#include <objidl.h>
// Its headers need the types of the one above.
#include <gdiplus.h>

#include <algorithm>
#include <fstream>

namespace fieldhost {
namespace {

// GDI+'s PNG encoder.
constexpr CLSID kPngEncoder = {
    0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

// GDI+ is at work for as long as this lives.
class GdiPlus {
 public:
  GdiPlus() {
    const Gdiplus::GdiplusStartupInput input;
    started_ = Gdiplus::GdiplusStartup(&token_, &input, nullptr) == Gdiplus::Ok;
  }
  ~GdiPlus() {
    if (started_) Gdiplus::GdiplusShutdown(token_);
  }
  GdiPlus(const GdiPlus&) = delete;
  GdiPlus& operator=(const GdiPlus&) = delete;

  [[nodiscard]] bool HasStarted() const { return started_; }

 private:
  ULONG_PTR token_ = 0;
  bool started_ = false;
};

// Writes a PNG file that says it is of so many dots an inch. False when it cannot be written.
[[nodiscard]] bool SavePng(Gdiplus::Bitmap& picture, int resolution,
                           const std::filesystem::path& file) {
  const auto dots = static_cast<Gdiplus::REAL>(resolution);
  return picture.SetResolution(dots, dots) == Gdiplus::Ok &&
         picture.Save(file.c_str(), &kPngEncoder, nullptr) == Gdiplus::Ok;
}

bool CopyClientArea(CWnd& window, CBitmap& bitmap) {
  CRect client;
  window.GetClientRect(&client);
  CClientDC screen(&window);
  CDC memory;
  if (!memory.CreateCompatibleDC(&screen) ||
      !bitmap.CreateCompatibleBitmap(&screen, client.Width(), client.Height())) {
    return false;
  }
  const CScopedSelect selected(memory, bitmap);
  return memory.BitBlt(0, 0, client.Width(), client.Height(), &screen, 0, 0, SRCCOPY);
}

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

bool WritePicture(CWnd& window, int resolution, const std::filesystem::path& file) {
  const GdiPlus gdi_plus;
  CBitmap bitmap;
  if (!gdi_plus.HasStarted() || !CopyClientArea(window, bitmap)) return false;
  Gdiplus::Bitmap picture(bitmap, nullptr);
  return SavePng(picture, resolution, file);
}

int ScreenResolution() { return CClientDC(nullptr).GetDeviceCaps(LOGPIXELSX); }

bool WriteOneBitPicture(const OneBitPicture& picture, OneBitFormat format, int resolution,
                        const std::filesystem::path& file) {
  return format == OneBitFormat::kPng ? WritePng(picture, resolution, file)
                                      : WritePbm(picture, file);
}

}  // namespace fieldhost
