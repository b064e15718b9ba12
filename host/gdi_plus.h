// The system's picture library, GDI+.
#pragma once

#include <afxwin.h>
#include <objidl.h>
// Its headers need the types of the one above.
#include <gdiplus.h>

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

}  // namespace fieldhost
