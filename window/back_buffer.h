// The off-screen picture that a plot window shows.
#pragma once

#include <afxwin.h>
#include <framework/scoped_select.h>

#include <optional>

#include "draw/dib/dib_section.h"

namespace tavix {

// A memory device context with a bitmap of the size of a window's client area, made once.
// Everything is drawn here; painting copies it to the screen.
class BackBuffer {
 public:
  BackBuffer() = default;
  BackBuffer(const BackBuffer&) = delete;
  BackBuffer& operator=(const BackBuffer&) = delete;

  // Makes the buffer for `window` and fills it with the window background. For an empty client area
  // it makes nothing, and what is drawn there goes nowhere.
  void Create(CWnd& window);

  void Fill();

  [[nodiscard]] CDC& Dc() { return dc_; }

  // The pixels that Dc() draws into; null where the screen's colours are not of 32 bits.
  [[nodiscard]] const PixelBlock& Pixels() const { return pixels_; }

  // The client area at creation: left and top are 0.
  [[nodiscard]] const CRect& Rect() const { return rect_; }

 private:
  CDC dc_;
  CBitmap bitmap_;
  std::optional<CScopedSelect> selected_;  // the bitmap
  PixelBlock pixels_;
  CRect rect_{0, 0, 0, 0};
};

}  // namespace tavix
