#include "draw/dib/dib_section.h"

#include <afxwin.h>

#include <new>

namespace tavix {

PixelBlock CreateDib(CDC& dc, int width, int height, CBitmap& bitmap) {
  constexpr int kBits = 32;
  if (dc.GetDeviceCaps(BITSPIXEL) * dc.GetDeviceCaps(PLANES) != kBits) return {};
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, kBits, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  const HBITMAP made = ::CreateDIBSection(dc.m_hDC, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  if (!made) return {};
  try {
    bitmap.Attach(made);
  } catch (const std::bad_alloc&) {
    ::DeleteObject(made);
    throw;
  }
  return {static_cast<std::uint32_t*>(bits), width, height};
}

}  // namespace tavix
