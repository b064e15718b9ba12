#include "tests/support/raw_overlays.h"

namespace tavix::test {

void DrawRawPolyline(HDC dc, COLORREF color, const std::vector<POINT>& points) {
  const RawSelection pen(dc, ::CreatePen(PS_SOLID, 1, color));
  ::Polyline(dc, points.data(), static_cast<int>(points.size()));
}

void DrawRawScaleBar(HDC dc, int length, const std::wstring& text) {
  const int end = length + 5;
  {
    const RawSelection pen(dc, ::CreatePen(PS_SOLID, 1, RGB(0, 0, 255)));
    ::MoveToEx(dc, 8, 5, nullptr);
    ::LineTo(dc, 5, 5);
    ::LineTo(dc, 5, end);
    ::LineTo(dc, 8, end);
  }
  LOGFONTW look{};
  look.lfHeight = 10;
  look.lfWeight = 400;
  look.lfCharSet = 128;
  const RawSelection font(dc, ::CreateFontIndirectW(&look));
  const int count = static_cast<int>(text.size());
  RECT place{9, length + 3, 9 + 10 * count, length + 53};
  ::DrawTextW(dc, text.c_str(), count, &place, DT_NOCLIP);
}

void DrawRawFrame(HDC dc, int left, int top, int right, int bottom) {
  DrawRawPolyline(dc, 0, {{left, top}, {right, top}, {right, bottom}, {left, bottom}, {left, top}});
}

void XorRawPolyline(HDC dc, COLORREF color, int width, const std::vector<POINT>& points) {
  const RawXor drawing(dc, color, width);
  ::MoveToEx(dc, points.front().x, points.front().y, nullptr);
  for (std::size_t i = 1; i < points.size(); ++i) ::LineTo(dc, points[i].x, points[i].y);
}

void XorRawBand(HDC dc, const POINT (&outline)[5]) {
  ::SetBkMode(dc, OPAQUE);
  ::SetROP2(dc, R2_XORPEN);
  const RawSelection pen(dc, ::CreatePen(PS_DASH, 1, RGB(255, 0, 0)));
  ::Polyline(dc, outline, 5);
}

}  // namespace tavix::test
