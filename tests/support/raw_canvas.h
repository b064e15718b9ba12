// What a window should show, drawn by raw calls.
#pragma once

#include <windows.h>

#include "tests/support/window_picture.h"

namespace tavix::test {

// A bitmap of the size of a window's client area and compatible with it, filled with the window
// background, transparent background mode and no brush selected.
class RawCanvas {
 public:
  explicit RawCanvas(HWND window);
  ~RawCanvas();
  RawCanvas(const RawCanvas&) = delete;
  RawCanvas& operator=(const RawCanvas&) = delete;

  [[nodiscard]] HDC Dc() const { return dc_; }
  [[nodiscard]] Picture Take() const { return TakePicture(dc_, width_, height_); }

 private:
  int width_ = 0;
  int height_ = 0;
  HDC dc_ = nullptr;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ old_bitmap_ = nullptr;
};

// Selects an object made for it and deletes the object after putting the old one back.
class RawSelection {
 public:
  RawSelection(HDC dc, HGDIOBJ made) : dc_(dc), made_(made), old_(::SelectObject(dc, made)) {}
  ~RawSelection() {
    ::SelectObject(dc_, old_);
    ::DeleteObject(made_);
  }
  RawSelection(const RawSelection&) = delete;
  RawSelection& operator=(const RawSelection&) = delete;

 private:
  HDC dc_;
  HGDIOBJ made_;
  HGDIOBJ old_;
};

}  // namespace tavix::test
