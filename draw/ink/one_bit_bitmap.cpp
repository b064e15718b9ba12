#include "draw/ink/one_bit_bitmap.h"

#include <algorithm>
#include <cstring>
#include <random>

namespace tavix {

OneBitBitmap::OneBitBitmap(int width, int height) {
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

OneBitBitmap::~OneBitBitmap() {
  if (old_bitmap_) ::SelectObject(dc_.m_hDC, old_bitmap_);
  if (bitmap_) ::DeleteObject(bitmap_);
}

std::uint8_t* OneBitBitmap::Bits() const {
  ::GdiFlush();
  return static_cast<std::uint8_t*>(bits_);
}

OneBitReference::OneBitReference(int width, int height) : bitmap_(width, height) {
  if (IsMade()) block_ = {bitmap_.Bits(), width, height, bitmap_.Stride()};
}

void OneBitReference::FillWhite() { std::fill_n(Pixels().rows, Bytes(), std::uint8_t{0}); }

void OneBitReference::FillUnevenly() {
  std::minstd_rand random;
  std::generate_n(Pixels().rows, Bytes(), [&] { return static_cast<std::uint8_t>(random() >> 8); });
}

const InkBlock& OneBitReference::Pixels() const {
  ::GdiFlush();
  return block_;
}

std::size_t OneBitReference::Bytes() const {
  return block_.stride * static_cast<std::size_t>(block_.height);
}

OneBitTrial::OneBitTrial(const OneBitReference& reference) : block_(reference.Pixels()) {
  bytes_.assign(block_.rows, block_.rows + block_.stride * static_cast<std::size_t>(block_.height));
  block_.rows = bytes_.data();
}

bool OneBitTrial::Equals(const OneBitReference& reference) const {
  return std::equal(bytes_.begin(), bytes_.end(), reference.Pixels().rows);
}

}  // namespace tavix
