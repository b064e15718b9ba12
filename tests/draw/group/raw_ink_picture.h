// What a one-bit picture should show, drawn by raw calls.
#pragma once

#include <windows.h>

#include "tests/support/window_picture.h"

namespace tavix::test {

// A white bitmap of one bit a pixel; black is ink. Transparent background mode, no brush selected.
class RawInkPicture {
 public:
  RawInkPicture(int height, int width);
  ~RawInkPicture();
  RawInkPicture(const RawInkPicture&) = delete;
  RawInkPicture& operator=(const RawInkPicture&) = delete;

  [[nodiscard]] HDC Dc() const { return dc_; }
  [[nodiscard]] Picture Take() const { return TakePicture(dc_, width_, height_); }

  // A line of one pixel's width, and one without its last pixel.
  void Line(POINT from, POINT to) const;

  // The north arrow around `centre` in a view turned by `degrees`.
  void Arrow(POINT centre, int degrees = 0) const;

 private:
  int width_;
  int height_;
  HDC dc_;
  HBITMAP bitmap_;
  HGDIOBJ old_bitmap_;
};

}  // namespace tavix::test
