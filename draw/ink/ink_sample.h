// A small one-bit picture drawn by the system's own calls, to be learnt from.
#pragma once

#include <cstdint>
#include <vector>

#include "draw/ink/ink_block.h"
#include "draw/one_bit_canvas.h"

namespace tavix {

// A one-bit bitmap, all white at first.
class InkSample {
 public:
  InkSample(int width, int height);

  // False when there was no memory; nothing else may be called then.
  [[nodiscard]] bool IsMade() const { return canvas_.IsMade(); }

  [[nodiscard]] CDC& Dc() { return canvas_.Dc(); }

  void FillWhite();

  // Gives about half of the pixels ink, the same ones each time.
  void FillUnevenly();

  // What has been drawn so far; it changes with further drawing.
  [[nodiscard]] const InkBlock& Pixels() const;

 private:
  [[nodiscard]] std::size_t Bytes() const;

  OneBitCanvas canvas_;
  InkBlock block_;
};

// The same picture for drawing of our own: it begins as a copy of the sample and is compared with
// what the sample has become.
class OwnInkSample {
 public:
  explicit OwnInkSample(const InkSample& sample);
  OwnInkSample(const OwnInkSample&) = delete;
  OwnInkSample& operator=(const OwnInkSample&) = delete;

  [[nodiscard]] const InkBlock& Pixels() const { return block_; }
  [[nodiscard]] bool Equals(const InkSample& sample) const;

 private:
  std::vector<std::uint8_t> bytes_;
  InkBlock block_;
};

}  // namespace tavix
