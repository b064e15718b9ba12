#include "draw/one_bit_canvas.h"

#include <cstring>

namespace tavix {

OneBitCanvas::OneBitCanvas(int width, int height) {
  if (width < 1 || height < 1) return;
  struct {
    BITMAPINFOHEADER header;
    RGBQUAD colors[2];
  } info{{sizeof(BITMAPINFOHEADER), width, height, 1, 1, BI_RGB, 0, 0, 0, 0, 0},
         {{255, 255, 255, 0}, {0, 0, 0, 0}}};
  dc_.CreateCompatibleDC(nullptr);
  bitmap_ = ::CreateDIBSection(dc_.m_hDC, reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS,
                               &bits_, nullptr, 0);
  if (!bitmap_) {
    bits_ = nullptr;
    return;
  }
  stride_ = StrideOf(width);
  std::memset(bits_, 0, stride_ * static_cast<std::size_t>(height));
  old_bitmap_ = ::SelectObject(dc_.m_hDC, bitmap_);
}

OneBitCanvas::~OneBitCanvas() {
  if (old_bitmap_) ::SelectObject(dc_.m_hDC, old_bitmap_);
  if (bitmap_) ::DeleteObject(bitmap_);
}

std::uint8_t* OneBitCanvas::Bits() const {
  ::GdiFlush();
  return static_cast<std::uint8_t*>(bits_);
}

}  // namespace tavix
