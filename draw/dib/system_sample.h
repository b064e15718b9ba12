// A small picture drawn by the system's own calls, to be learnt from.
#pragma once

#include <afxwin.h>
#include <framework/scoped_select.h>

#include <cstdint>
#include <optional>
#include <vector>

#include "draw/dib/pixel_block.h"
#include "draw/gdi_canvas.h"

namespace tavix {

// A bitmap section with the plain canvas on it.
class SystemSample {
 public:
  SystemSample(int width, int height);
  SystemSample(const SystemSample&) = delete;
  SystemSample& operator=(const SystemSample&) = delete;

  // False when there was no memory; nothing else may be called then.
  [[nodiscard]] bool IsMade() const { return block_.pixels != nullptr; }

  [[nodiscard]] CDC& Dc() { return dc_; }

  // Gives every pixel this colour, or a colour of its own, the same ones each time.
  void Fill(std::uint32_t color);
  void FillUnevenly();

  // What has been drawn so far; it changes with further drawing.
  [[nodiscard]] const PixelBlock& Pixels() const;

 private:
  CDC dc_;
  CBitmap bitmap_;
  std::optional<CScopedSelect> selected_;  // the bitmap
  PixelBlock block_;
};

// The same picture for drawing of our own: it begins as a copy of the sample and is compared with
// what the sample has become.
class OwnSample {
 public:
  explicit OwnSample(const SystemSample& sample);
  OwnSample(const OwnSample&) = delete;
  OwnSample& operator=(const OwnSample&) = delete;

  [[nodiscard]] const PixelBlock& Pixels() const { return block_; }
  [[nodiscard]] bool Equals(const SystemSample& sample) const;

 private:
  std::vector<std::uint32_t> pixels_;
  PixelBlock block_;
};

}  // namespace tavix
