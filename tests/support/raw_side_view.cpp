#include "tests/support/raw_side_view.h"

#include "tests/support/raw_canvas.h"

namespace tavix::test {
namespace {

constexpr COLORREF kGrey = RGB(128, 128, 128);

void Red(HDC dc, int height, const POINT (&corners)[3]) {
  const RawSelection pen(dc, ::CreatePen(PS_SOLID, 1, RGB(255, 0, 0)));
  const POINT line[] = {OnSide(corners[0], height), OnSide(corners[1], height),
                        OnSide(corners[2], height)};
  ::Polyline(dc, line, 3);
}

void Foot(HDC dc, POINT at) {
  const HGDIOBJ old = ::SelectObject(dc, ::GetStockObject(BLACK_PEN));
  ::MoveToEx(dc, at.x - 1, at.y - 1, nullptr);
  ::LineTo(dc, at.x + 2, at.y + 2);
  ::MoveToEx(dc, at.x - 1, at.y + 1, nullptr);
  ::LineTo(dc, at.x + 2, at.y - 2);
  ::SelectObject(dc, old);
}

void Raised(HDC dc, const SidePoint& point, int height) {
  const POINT foot = OnSide(point.plan, height);
  PointLegend look = point.look;
  if (point.grey) {
    look.color = kGrey;
    look.width = 1;
  }
  const COLORREF old = ::SetTextColor(dc, point.grey ? kGrey : RGB(0, 0, 0));
  DrawRawPoint(dc, look, {foot.x, foot.y - point.raise}, point.label);
  ::SetTextColor(dc, old);
}

void HeightBase(HDC dc, int height, const std::wstring& text) {
  LOGFONTW font{};
  font.lfHeight = 10;
  font.lfWeight = 400;
  font.lfCharSet = 128;
  const RawSelection selected(dc, ::CreateFontIndirectW(&font));
  RECT at{5, height / 2, 5, height / 2};
  ::DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &at, DT_NOCLIP);
}

}  // namespace

POINT OnSide(POINT plan, int height) {
  const double up = (height - plan.y) * 0.7;
  const double along = plan.x * 0.9;
  return {static_cast<LONG>((up + along) * 0.8660254037844387),
          static_cast<LONG>(height - ((up - along) * 0.5 + height * 0.5))};
}

void DrawRawSideView(HDC dc, SIZE client, const std::vector<SidePoint>& points,
                     const std::wstring& height_base) {
  const LONG bottom = client.cy;
  const LONG right = client.cx - 20;
  Red(dc, bottom, {{0, bottom}, {0, 0}, {right, 0}});
  for (const SidePoint& point : points) {
    if (point.look.size > 0) Foot(dc, OnSide(point.plan, bottom));
  }
  for (const SidePoint& point : points) Raised(dc, point, bottom);
  Red(dc, bottom, {{0, bottom}, {right, bottom}, {right, 0}});
  HeightBase(dc, bottom, height_base);
}

}  // namespace tavix::test
