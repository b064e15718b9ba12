// Small bitmaps that GDI draws in, to be read back and compared with.
#pragma once

#include <afxwin.h>
#include <framework/scoped_select.h>

#include <cstdint>
#include <optional>
#include <vector>

#include "draw/dib/dib_section.h"

namespace tavix {

// A 32-bit DIB section in a memory device context.
class ReferenceBitmap {
 public:
  ReferenceBitmap(int width, int height);
  ReferenceBitmap(const ReferenceBitmap&) = delete;
  ReferenceBitmap& operator=(const ReferenceBitmap&) = delete;

  // False when there was no memory; nothing else may be called then.
  [[nodiscard]] bool IsMade() const { return block_.pixels != nullptr; }

  [[nodiscard]] CDC& Dc() { return dc_; }

  // Gives every pixel this colour.
  void Fill(std::uint32_t color);

  // Gives every pixel a colour of its own, the same ones each time.
  void FillUnevenly();

  // What has been drawn so far; it changes with further drawing.
  [[nodiscard]] const PixelBlock& Pixels() const;

 private:
  CDC dc_;
  CBitmap bitmap_;
  std::optional<CScopedSelect> selected_;  // the bitmap
  PixelBlock block_;
};

// A copy of a reference bitmap for our own drawing, which is then compared with what GDI has drawn
// in the reference.
class TrialBitmap {
 public:
  explicit TrialBitmap(const ReferenceBitmap& reference);
  TrialBitmap(const TrialBitmap&) = delete;
  TrialBitmap& operator=(const TrialBitmap&) = delete;

  [[nodiscard]] const PixelBlock& Pixels() const { return block_; }
  [[nodiscard]] bool Equals(const ReferenceBitmap& reference) const;

 private:
  std::vector<std::uint32_t> pixels_;
  PixelBlock block_;
};

}  // namespace tavix
