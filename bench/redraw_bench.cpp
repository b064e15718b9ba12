// Measures a full redraw through the exported calls against its floor: the same picture by the
// plainest sequence of drawing calls from flat arrays, in the same process and the same kind of
// bitmap.
//
//   redraw_bench [POINTS]      21479 without an argument
//
// The scene: POINTS points on a jittered grid, each a hollow circle of 10 pixels with the label
// "P<number>"; 20,000 lines between neighbours at most (a line keeps 16 bits of a key); a view
// turned by 15 degrees of 240 x 320 pixels. "whole" has all of it in view, "1 %" a hundredth of the
// ground. Prints the median of several rounds, the ratio to the floor, and the entities drawn a
// second.
#include <tavix/tavix.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "bench/median_time.h"

namespace {

using tavix::MedianMilliseconds;

constexpr int kWidth = 240;
constexpr int kHeight = 320;
constexpr double kSide = 10000.0;  // metres
constexpr int kAngle = 15;         // degrees
constexpr int kMostLines = 20000;
constexpr COLORREF kMarkColor = RGB(0, 0, 255);
constexpr COLORREF kLineColor = RGB(0, 128, 0);

struct Place {
  double x;
  double y;
};

std::vector<Place> MakePlaces(int count) {
  std::vector<Place> places;
  std::mt19937 random(1);
  std::uniform_real_distribution<double> jitter(-0.3, 0.3);
  const int columns = std::max(1, static_cast<int>(std::ceil(std::sqrt(count))));
  const double cell = kSide / columns;
  for (int i = 0; i < count; ++i) {
    const int row = i / columns;
    const int column = row % 2 == 0 ? i % columns : columns - 1 - i % columns;
    places.push_back(
        {kSide - (row + 0.5 + jitter(random)) * cell, (column + 0.5 + jitter(random)) * cell});
  }
  return places;
}

int LineCount(const std::vector<Place>& places) {
  return std::min(static_cast<int>(places.size()) - 1, kMostLines);
}

// The floor's own view: rotation, scale, truncation.
struct View {
  double scale;
  double cos_a = std::cos(kAngle * 0.017453292519943295);
  double sin_a = std::sin(kAngle * 0.017453292519943295);

  [[nodiscard]] POINT ToPixel(Place at) const {
    const double dx = (at.y - kSide / 2) * scale;
    const double dy = (kSide / 2 - at.x) * scale;
    return {static_cast<LONG>(dx * cos_a - dy * sin_a + kWidth / 2),
            static_cast<LONG>(dy * cos_a + dx * sin_a + kHeight / 2)};
  }
};

bool Touches(POINT p, LONG reach) {
  return p.x + reach >= 0 && p.y + reach >= 0 && p.x - reach <= kWidth && p.y - reach <= kHeight;
}

bool MayTouch(POINT a, POINT b) {
  return !((a.x < 0 && b.x < 0) || (a.y < 0 && b.y < 0) || (a.x > kWidth && b.x > kWidth) ||
           (a.y > kHeight && b.y > kHeight));
}

// Draws the scene by raw calls and returns how many entities showed.
int DrawFloor(HDC dc, const View& view, const std::vector<Place>& places) {
  const RECT all{0, 0, kWidth, kHeight};
  ::FillRect(dc, &all, ::GetSysColorBrush(COLOR_WINDOW));
  int drawn = 0;
  const HPEN line_pen = ::CreatePen(PS_SOLID, 1, kLineColor);
  const HGDIOBJ old_pen = ::SelectObject(dc, line_pen);
  for (int i = 0; i < LineCount(places); ++i) {
    const POINT a = view.ToPixel(places[static_cast<std::size_t>(i)]);
    const POINT b = view.ToPixel(places[static_cast<std::size_t>(i) + 1]);
    if (!MayTouch(a, b)) continue;
    ::MoveToEx(dc, a.x, a.y, nullptr);
    ::LineTo(dc, b.x, b.y);
    ++drawn;
  }
  const HPEN mark_pen = ::CreatePen(PS_SOLID, 1, kMarkColor);
  ::SelectObject(dc, mark_pen);
  int number = 0;
  for (const Place& place : places) {
    ++number;
    const POINT p = view.ToPixel(place);
    if (!Touches(p, 10)) continue;
    ::Ellipse(dc, p.x - 5, p.y - 5, p.x + 5, p.y + 5);
    const std::wstring label = L"P" + std::to_wstring(number);
    RECT box{p.x, p.y + 2, p.x + 200, p.y - 8};
    ::DrawTextW(dc, label.c_str(), static_cast<int>(label.size()), &box, DT_NOCLIP);
    ++drawn;
  }
  ::GdiFlush();
  ::SelectObject(dc, old_pen);
  ::DeleteObject(line_pen);
  ::DeleteObject(mark_pen);
  return drawn;
}

void Measure(const char* name, HDC floor_dc, const std::vector<Place>& places, double ground_side) {
  Tavix_Zom(kSide / 2 - ground_side / 2, kSide / 2 - ground_side / 2, kSide / 2 + ground_side / 2,
            kSide / 2 + ground_side / 2);
  // The window shows the turned square in its narrower side; the floor takes the same scale.
  const View view{kWidth / (ground_side * (std::cos(kAngle * 0.017453292519943295) +
                                           std::sin(kAngle * 0.017453292519943295)))};
  int drawn = 0;
  const double floor_ms = MedianMilliseconds([&] { drawn = DrawFloor(floor_dc, view, places); });
  const double redraw_ms = MedianMilliseconds([] {
    Tavix_Drw(1);
    ::GdiFlush();
  });
  std::printf("%-6s floor %8.2f ms   redraw %8.2f ms   ratio %.2f   %d entities, %.0f a second\n",
              name, floor_ms, redraw_ms, redraw_ms / floor_ms, drawn, drawn / redraw_ms * 1e3);
}

HDC MakeFloorSurface(HWND window) {
  const HDC screen = ::GetDC(window);
  const HDC dc = ::CreateCompatibleDC(screen);
  ::SelectObject(dc, ::CreateCompatibleBitmap(screen, kWidth, kHeight));
  ::ReleaseDC(window, screen);
  LOGFONTW font{};
  font.lfHeight = 10;
  font.lfWeight = FW_NORMAL;
  font.lfCharSet = SHIFTJIS_CHARSET;
  ::SelectObject(dc, ::CreateFontIndirectW(&font));
  ::SelectObject(dc, ::GetStockObject(NULL_BRUSH));
  ::SetBkMode(dc, TRANSPARENT);
  return dc;
}

void EnterScene(const std::vector<Place>& places) {
  short mark = 0;
  short line = 0;
  Tavix_AddPntHan(2, 1, static_cast<int>(kMarkColor), 10, 10, 0, &mark);
  Tavix_AddLinHan(101, 0, 0, 0, 1, static_cast<int>(kLineColor), &line);
  Tavix_SelPntHan(mark);
  Tavix_SelLinHan(line);
  int key = 0;
  for (const Place& place : places) {
    ++key;
    CString name;
    name.Format(L"P%d", key);
    Tavix_EntPnt(key, key, name, place.x, place.y);
  }
  for (int i = 1; i <= LineCount(places); ++i) Tavix_EntLin(i, i + 1);
}

}  // namespace

int main(int argc, char** argv) {
  const int count = argc > 1 ? std::max(2, std::atoi(argv[1])) : 21479;
  const HWND host = ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 400, 400,
                                      nullptr, nullptr, nullptr, nullptr);
  Tavix_Crt();
  // Three pixels of frame on each side: border and edge.
  Tavix_LnkRct(CWnd::FromHandle(host), 0, 0, kWidth + 6, kHeight + 6, 1);
  Tavix_SetBtn(0);
  Tavix_Dsp(1);
  const std::vector<Place> places = MakePlaces(count);
  EnterScene(places);
  Tavix_SetAng(kAngle);
  const HDC floor_dc = MakeFloorSurface(Tavix_Wnd()->m_hWnd);
  Measure("whole", floor_dc, places, kSide);
  Measure("1 %", floor_dc, places, kSide / 10);
  Tavix_Del();
  return 0;
}
