#include "host/picture_writer.h"

#include <framework/scoped_select.h>
#include <objidl.h>
// Its headers need the types of the one above.
#include <gdiplus.h>

namespace fieldhost {
namespace {

// The system's PNG encoder.
constexpr CLSID kPngEncoder = {
    0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

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

}  // namespace

bool WritePicture(CWnd& window, const std::filesystem::path& file) {
  const GdiPlus gdi_plus;
  CBitmap bitmap;
  if (!gdi_plus.HasStarted() || !CopyClientArea(window, bitmap)) return false;
  Gdiplus::Bitmap picture(bitmap, nullptr);
  return picture.Save(file.c_str(), &kPngEncoder, nullptr) == Gdiplus::Ok;
}

}  // namespace fieldhost
