// The system's picture library, GDI+.
#pragma once

#include <afxwin.h>
#include <objidl.h>
// Its headers need the types of the one above.
#include <gdiplus.h>

#include <filesystem>

namespace fieldhost {

// The system's PNG encoder.
inline constexpr CLSID kPngEncoder = {
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
[[nodiscard]] inline bool SavePng(Gdiplus::Bitmap& picture, int resolution,
                                  const std::filesystem::path& file) {
  const auto dots = static_cast<Gdiplus::REAL>(resolution);
  return picture.SetResolution(dots, dots) == Gdiplus::Ok &&
         picture.Save(file.c_str(), &kPngEncoder, nullptr) == Gdiplus::Ok;
}

}  // namespace fieldhost
