#include "tests/support/raw_points.h"

#include "tests/support/raw_canvas.h"

namespace tavix::test {
namespace {

void Line(HDC dc, int x1, int y1, int x2, int y2) {
  ::MoveToEx(dc, x1, y1, nullptr);
  ::LineTo(dc, x2, y2);
}

void Triangle(HDC dc, int size, int x, int y) {
  const int up = static_cast<int>(size * 0.8);
  const int down = static_cast<int>(size * 0.2);
  const POINT corners[] = {{x, y - up}, {x - size / 2, y + down}, {x + size / 2, y + down}};
  ::Polygon(dc, corners, 3);
}

void Mark(HDC dc, int kind, int size, int x, int y) {
  const int h = size / 2;
  const POINT square[] = {{x - h, y - h}, {x - h, y + h}, {x + h, y + h}, {x + h, y - h}};
  if (kind == 1) ::Ellipse(dc, x, y, x, y);
  if (kind == 2 || kind == 8) ::Ellipse(dc, x - h, y - h, x + h, y + h);
  if (kind == 3) {
    Line(dc, x - h, y - h, x + h + 1, y + h + 1);
    Line(dc, x - h, y + h, x + h + 1, y - h - 1);
  }
  if (kind == 4) {
    Line(dc, x - h, y, x + h + 1, y);
    Line(dc, x, y - h, x, y + h + 1);
  }
  if (kind == 5 || kind == 9) Triangle(dc, size, x, y);
  if (kind == 6 || kind == 10) ::Polygon(dc, square, 4);
  if (kind == 7 || kind == 11) Triangle(dc, -size, x, y);
}

HFONT Font(int height) {
  LOGFONTW font{};
  font.lfHeight = height;
  font.lfWeight = 400;
  font.lfCharSet = 128;
  return ::CreateFontIndirectW(&font);
}

HBRUSH Brush(const PointLegend& look) {
  return look.kind < 8 ? static_cast<HBRUSH>(::GetStockObject(NULL_BRUSH))
                       : ::CreateSolidBrush(look.color);
}

}  // namespace

void DrawRawPoint(HDC dc, const PointLegend& look, POINT at, const std::wstring& label) {
  const RawSelection pen(dc, ::CreatePen(PS_SOLID, look.width, look.color));
  const RawSelection brush(dc, Brush(look));
  if (look.size > 0) Mark(dc, look.kind, look.size, at.x, at.y);
  if (look.text_height <= 0 || label.empty()) return;

  const RawSelection font(dc, Font(look.text_height));
  const int count = static_cast<int>(label.size());
  const int top = at.y + look.size / 4;
  RECT upside_down{at.x, top, at.x + 2 * count * look.text_height, top - look.text_height};
  ::DrawTextW(dc, label.c_str(), count, &upside_down, DT_NOCLIP);
}

}  // namespace tavix::test
