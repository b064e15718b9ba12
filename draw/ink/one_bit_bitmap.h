// One-bit bitmaps that GDI draws in.
#pragma once

#include <afxwin.h>

#include <cstddef>
#include <cstdint>
#include <vector>

#include "draw/ink/ink_mask.h"

namespace tavix {

// A memory device context over a one-bit DIB section, all white at first. Bit 1 is black.
class OneBitBitmap {
 public:
  OneBitBitmap(int width, int height);
  ~OneBitBitmap();
  OneBitBitmap(const OneBitBitmap&) = delete;
  OneBitBitmap& operator=(const OneBitBitmap&) = delete;

  // False for an empty size, or when there was no memory; nothing else may be called then.
  [[nodiscard]] bool IsMade() const { return bits_ != nullptr; }

  [[nodiscard]] CDC& Dc() { return dc_; }

  // Bytes a row: whole 32-bit words.
  [[nodiscard]] static std::size_t StrideOf(int width) {
    return (static_cast<std::size_t>(width) + 31) / 32 * 4;
  }
  [[nodiscard]] std::size_t Stride() const { return stride_; }

  // What has been drawn so far: rows from the bottom up, most significant bit first. It changes
  // with further drawing.
  [[nodiscard]] std::uint8_t* Bits() const;

 private:
  CDC dc_;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ old_bitmap_ = nullptr;
  void* bits_ = nullptr;
  std::size_t stride_ = 0;
};

// A one-bit bitmap that GDI draws in, to be read back and compared with; all white at first.
class OneBitReference {
 public:
  OneBitReference(int width, int height);

  // False when there was no memory; nothing else may be called then.
  [[nodiscard]] bool IsMade() const { return bitmap_.IsMade(); }

  [[nodiscard]] CDC& Dc() { return bitmap_.Dc(); }

  void FillWhite();

  // Gives about half of the pixels ink, the same ones each time.
  void FillUnevenly();

  // What has been drawn so far; it changes with further drawing.
  [[nodiscard]] const InkBlock& Pixels() const;

 private:
  [[nodiscard]] std::size_t Bytes() const;

  OneBitBitmap bitmap_;
  InkBlock block_;
};

// A copy of a reference bitmap for our own drawing, which is then compared with what GDI has drawn
// in the reference.
class OneBitTrial {
 public:
  explicit OneBitTrial(const OneBitReference& reference);
  OneBitTrial(const OneBitTrial&) = delete;
  OneBitTrial& operator=(const OneBitTrial&) = delete;

  [[nodiscard]] const InkBlock& Pixels() const { return block_; }
  [[nodiscard]] bool Equals(const OneBitReference& reference) const;

 private:
  std::vector<std::uint8_t> bytes_;
  InkBlock block_;
};

}  // namespace tavix
