#include "draw/ink/ink_sample.h"

#include <algorithm>
#include <random>

namespace tavix {

InkSample::InkSample(int width, int height) : canvas_(width, height) {
  if (IsMade()) block_ = {canvas_.Bits(), width, height, canvas_.Stride()};
}

void InkSample::FillWhite() { std::fill_n(Pixels().rows, Bytes(), std::uint8_t{0}); }

void InkSample::FillUnevenly() {
  std::minstd_rand random;
  std::generate_n(Pixels().rows, Bytes(), [&] { return static_cast<std::uint8_t>(random() >> 8); });
}

const InkBlock& InkSample::Pixels() const {
  ::GdiFlush();
  return block_;
}

std::size_t InkSample::Bytes() const {
  return block_.stride * static_cast<std::size_t>(block_.height);
}

OwnInkSample::OwnInkSample(const InkSample& sample) : block_(sample.Pixels()) {
  bytes_.assign(block_.rows, block_.rows + block_.stride * static_cast<std::size_t>(block_.height));
  block_.rows = bytes_.data();
}

bool OwnInkSample::Equals(const InkSample& sample) const {
  return std::equal(bytes_.begin(), bytes_.end(), sample.Pixels().rows);
}

}  // namespace tavix
