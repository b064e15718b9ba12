#include "draw/dib/system_sample.h"

#include <algorithm>

#include "draw/dib/dib_section.h"

namespace tavix {

SystemSample::SystemSample(int width, int height) {
  CClientDC screen(nullptr);
  dc_.CreateCompatibleDC(&screen);
  block_ = CreateDib(screen, width, height, bitmap_);
  if (IsMade()) selected_.emplace(dc_, bitmap_);
}

void SystemSample::Fill(std::uint32_t color) {
  std::fill_n(Pixels().pixels, block_.Count(), color);
}

void SystemSample::FillUnevenly() {
  std::uint32_t random = 1;
  std::generate_n(Pixels().pixels, block_.Count(), [&] {
    random = random * 1664525 + 1013904223;
    return random >> 8;
  });
}

const PixelBlock& SystemSample::Pixels() const {
  ::GdiFlush();
  return block_;
}

OwnSample::OwnSample(const SystemSample& sample)
    : pixels_(sample.Pixels().pixels, sample.Pixels().pixels + sample.Pixels().Count()),
      block_{pixels_.data(), sample.Pixels().width, sample.Pixels().height} {}

bool OwnSample::Equals(const SystemSample& sample) const {
  return std::equal(pixels_.begin(), pixels_.end(), sample.Pixels().pixels);
}

}  // namespace tavix
