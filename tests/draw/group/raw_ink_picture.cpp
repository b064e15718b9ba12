#include "tests/draw/group/raw_ink_picture.h"

#include <cmath>

namespace tavix::test {
namespace {

struct OneBitInfo {
  BITMAPINFOHEADER header;
  RGBQUAD colors[2];
};

}  // namespace

RawInkPicture::RawInkPicture(int height, int width)
    : width_(width), height_(height), dc_(::CreateCompatibleDC(nullptr)) {
  OneBitInfo info{{sizeof(BITMAPINFOHEADER), width, height, 1, 1, BI_RGB, 0, 0, 0, 0, 0},
                  {{255, 255, 255, 0}, {0, 0, 0, 0}}};
  void* bits = nullptr;
  bitmap_ = ::CreateDIBSection(dc_, reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS, &bits,
                               nullptr, 0);
  old_bitmap_ = ::SelectObject(dc_, bitmap_);
  // WHITENESS would set every bit, and a bit that is set is ink here.
  const RECT all{0, 0, width, height};
  ::FillRect(dc_, &all, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
  ::SetBkMode(dc_, TRANSPARENT);
  ::SelectObject(dc_, ::GetStockObject(NULL_BRUSH));
}

RawInkPicture::~RawInkPicture() {
  ::SelectObject(dc_, old_bitmap_);
  ::DeleteObject(bitmap_);
  ::DeleteDC(dc_);
}

void RawInkPicture::Line(POINT from, POINT to) const {
  ::SelectObject(dc_, ::GetStockObject(BLACK_PEN));
  ::MoveToEx(dc_, from.x, from.y, nullptr);
  ::LineTo(dc_, to.x, to.y);
}

void RawInkPicture::Arrow(POINT centre, int degrees) const {
  const double turn = degrees * 3.14159265358979323846 / 180;
  // Quarter turns have no rounding noise: a hair below a whole number would be a pixel less.
  const double c = degrees % 180 == 90 ? 0 : std::cos(turn);
  const double s = degrees % 180 == 0 ? 0 : std::sin(turn);
  const double u = centre.x;
  const double v = centre.y;
  const auto pixel = [](double x, double y) {
    return POINT{static_cast<LONG>(x), static_cast<LONG>(y)};
  };
  Line(pixel(u - 25 * c, v - 25 * s), pixel(u + 25 * c, v + 25 * s));
  const POINT arrow[] = {pixel(u - 60 * s, v + 60 * c), pixel(u + 60 * s, v - 60 * c),
                         pixel(u - 10 * c + 40 * s, v - 10 * s - 40 * c),
                         pixel(u + 2 * c + 12 * s, v + 2 * s - 12 * c)};
  ::Polyline(dc_, arrow, 4);
}

}  // namespace tavix::test
