#include "draw/dib/dib_section.h"

#include <afxwin.h>

namespace tavix {

PixelBlock CreateDib(CDC& dc, int width, int height, CBitmap& bitmap) {
  constexpr int kBits = 32;
  if (dc.GetDeviceCaps(BITSPIXEL) * dc.GetDeviceCaps(PLANES) != kBits) return {};
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, kBits, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  if (!bitmap.Attach(::CreateDIBSection(dc.m_hDC, &info, DIB_RGB_COLORS, &bits, nullptr, 0))) {
    return {};
  }
  return {static_cast<std::uint32_t*>(bits), width, height};
}

}  // namespace tavix
