#include "tests/support/raw_canvas.h"

namespace tavix::test {

RawCanvas::RawCanvas(HWND window) {
  RECT client;
  ::GetClientRect(window, &client);
  width_ = client.right;
  height_ = client.bottom;
  const HDC screen = ::GetDC(window);
  dc_ = ::CreateCompatibleDC(screen);
  bitmap_ = ::CreateCompatibleBitmap(screen, width_, height_);
  ::ReleaseDC(window, screen);
  old_bitmap_ = ::SelectObject(dc_, bitmap_);
  ::FillRect(dc_, &client, ::GetSysColorBrush(COLOR_WINDOW));
  ::SetBkMode(dc_, TRANSPARENT);
  ::SelectObject(dc_, ::GetStockObject(NULL_BRUSH));
}

RawCanvas::~RawCanvas() {
  ::SelectObject(dc_, old_bitmap_);
  ::DeleteObject(bitmap_);
  ::DeleteDC(dc_);
}

}  // namespace tavix::test
