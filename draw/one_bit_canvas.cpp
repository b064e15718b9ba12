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
  stride_ = (static_cast<std::size_t>(width) + 31) / 32 * 4;
  rows_ = static_cast<std::size_t>(height);
  std::memset(bits_, 0, stride_ * rows_);
  old_bitmap_ = ::SelectObject(dc_.m_hDC, bitmap_);
}

OneBitCanvas::~OneBitCanvas() {
  if (old_bitmap_) ::SelectObject(dc_.m_hDC, old_bitmap_);
  if (bitmap_) ::DeleteObject(bitmap_);
}

std::vector<std::uint8_t> OneBitCanvas::CopyBits() const {
  ::GdiFlush();
  const auto* bytes = static_cast<const std::uint8_t*>(bits_);
  return {bytes, bytes + stride_ * rows_};
}

}  // namespace tavix
