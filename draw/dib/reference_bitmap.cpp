#include "draw/dib/reference_bitmap.h"

#include <algorithm>

#include "draw/dib/dib_section.h"

namespace tavix {

ReferenceBitmap::ReferenceBitmap(int width, int height) {
  CClientDC screen(nullptr);
  dc_.CreateCompatibleDC(&screen);
  block_ = CreateDib(screen, width, height, bitmap_);
  if (IsMade()) selected_.emplace(dc_, bitmap_);
}

void ReferenceBitmap::Fill(std::uint32_t color) {
  std::fill_n(Pixels().pixels, block_.Count(), color);
}

void ReferenceBitmap::FillUnevenly() {
  std::uint32_t random = 1;
  std::generate_n(Pixels().pixels, block_.Count(), [&] {
    random = random * 1664525 + 1013904223;
    return random >> 8;
  });
}

const PixelBlock& ReferenceBitmap::Pixels() const {
  ::GdiFlush();
  return block_;
}

TrialBitmap::TrialBitmap(const ReferenceBitmap& reference)
    : pixels_(reference.Pixels().pixels, reference.Pixels().pixels + reference.Pixels().Count()),
      block_{pixels_.data(), reference.Pixels().width, reference.Pixels().height} {}

bool TrialBitmap::Equals(const ReferenceBitmap& reference) const {
  return std::equal(pixels_.begin(), pixels_.end(), reference.Pixels().pixels);
}

}  // namespace tavix
