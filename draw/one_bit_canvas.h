// A bitmap of ink on white.
#pragma once

#include <afxwin.h>

#include <cstddef>
#include <cstdint>

namespace tavix {

// A memory device context over a one-bit bitmap, all white at first. Bit 1 is black.
class OneBitCanvas {
 public:
  OneBitCanvas(int width, int height);
  ~OneBitCanvas();
  OneBitCanvas(const OneBitCanvas&) = delete;
  OneBitCanvas& operator=(const OneBitCanvas&) = delete;

  // False when the size is none or there was no memory; nothing else may be called then.
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

}  // namespace tavix
