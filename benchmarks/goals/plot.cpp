#include "benchmarks/goals/plot.h"

#include <tavix/tavix.h>

#include <cstdlib>

namespace tavix {
namespace {

constexpr int kFrame = 3;  // border and edge on each side of a plot window

}  // namespace

HWND HostWindow() {
  static const HWND window =
      ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0, 3860,
                        2180, nullptr, nullptr, nullptr, nullptr);
  return window;
}

Plot::Plot(int instance, SIZE size, bool buttons) : instance_(instance), size_(size) {
  Tavix_SetIdx(instance);
  if (Tavix_Crt() != 0) std::abort();
  Tavix_SetBtn(buttons ? 1 : 0);
  Tavix_LnkRct(CWnd::FromHandle(HostWindow()), 0, 0, size.cx + 2 * kFrame, size.cy + 2 * kFrame,
               kNotify);
  Tavix_Dsp(1);
  window_ = Tavix_Wnd()->m_hWnd;
  ::UpdateWindow(window_);
  view_.SetScreenSize(size.cx, size.cy);
}

Plot::~Plot() {
  MakeCurrent();
  Tavix_Del();
}

void Plot::MakeCurrent() const { Tavix_SetIdx(instance_); }

void Plot::Use(const Look& look) {
  constexpr int kCircle = 2;
  Tavix_AddPntHan(kCircle, look.mark_pen, kMarkColor, look.mark_size, look.label_height, 0, &mark_);
  Tavix_SelPntHan(mark_);
  Tavix_AddLinHan(look.line_kind, kDash, kGap, kShortDash, look.line_pen, kLineColor, &line_);
  Tavix_SelLinHan(line_);
  Tavix_AddLinHan(101, 0, 0, 0, look.figure_pen, kFigureColor, &figure_);
}

void Plot::EnterPoint(const Survey& survey, std::size_t i) const {
  const int key = static_cast<int>(i) + 1;
  const GroundPoint at = survey.points[i];
  Tavix_EntPnt(key, key, survey.names[i].c_str(), at.north, at.east);
}

void Plot::Enter(const Survey& survey) {
  for (std::size_t i = 0; i < survey.points.size(); ++i) EnterPoint(survey, i);
  for (int i = 1; i <= survey.lines; ++i) Tavix_EntLin(i, i + 1);
  int number = 0;
  for (const std::vector<GroundPoint>& figure : survey.figures) {
    std::vector<double> x;
    std::vector<double> y;
    for (const GroundPoint& at : figure) {
      x.push_back(at.north);
      y.push_back(at.east);
    }
    Tavix_FigStt(++number, figure_);
    Tavix_FigMdlPly(static_cast<int>(figure.size()), x.data(), y.data());
    Tavix_FigEnd();
  }
  for (const Circle& circle : survey.circles) {
    Tavix_FigStt(++number, figure_);
    Tavix_FigMdlCir(circle.centre.north, circle.centre.east, circle.radius);
    Tavix_FigEnd();
  }
}

void Plot::Show(double ground_side, int angle) {
  const double low = kSurveySide / 2 - ground_side / 2;
  const double high = kSurveySide / 2 + ground_side / 2;
  // The box is measured in the rotated view: the whole side is to show whatever the angle.
  Tavix_SetAng(0);
  Tavix_Zom(low, low, high, high);
  Tavix_SetAng(angle);
  static_cast<void>(view_.SetAngle(0));
  static_cast<void>(
      view_.ZoomToArea({high - low, high - low}, {(low + high) * 0.5, (low + high) * 0.5}));
  static_cast<void>(view_.SetAngle(angle));
}

// A redraw that is pending is drawn before the angle is set, to what it is.
void Plot::Redraw() const {
  Tavix_Drw(1);
  Tavix_SetAng(view_.Angle());
  ::GdiFlush();
}

void Plot::RedrawAndPaint() const {
  Tavix_Drw(1);
  ::UpdateWindow(window_);
  ::GdiFlush();
}

void Plot::Paint() const {
  ::InvalidateRect(window_, nullptr, FALSE);
  ::UpdateWindow(window_);
  ::GdiFlush();
}

std::vector<std::uint32_t> Plot::Screen() const {
  ::UpdateWindow(window_);
  BITMAPINFO info{};
  info.bmiHeader = {sizeof(BITMAPINFOHEADER), size_.cx, -size_.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  const HDC window = ::GetDC(window_);
  const HDC copy = ::CreateCompatibleDC(window);
  const HBITMAP bitmap = ::CreateDIBSection(window, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  const HGDIOBJ first = ::SelectObject(copy, bitmap);
  ::BitBlt(copy, 0, 0, size_.cx, size_.cy, window, 0, 0, SRCCOPY);
  ::GdiFlush();
  const auto* pixels = static_cast<const std::uint32_t*>(bits);
  std::vector<std::uint32_t> shown(pixels, pixels + static_cast<std::size_t>(size_.cx * size_.cy));
  for (std::uint32_t& pixel : shown) pixel &= 0xFFFFFF;
  ::SelectObject(copy, first);
  ::DeleteObject(bitmap);
  ::DeleteDC(copy);
  ::ReleaseDC(window_, window);
  return shown;
}

}  // namespace tavix
