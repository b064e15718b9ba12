#include "window/overlays/map_surround.h"

#include <framework/scoped_select.h>

#include <array>

#include "view/scale_bar.h"

namespace tavix {
namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

template <std::size_t N>
void DrawPolyline(CDC& dc, const std::array<ScreenPoint, N>& points) {
  std::array<POINT, N> line;
  for (std::size_t i = 0; i < N; ++i) line[i] = {points[i].x, points[i].y};
  dc.Polyline(line.data(), static_cast<int>(N));
}

CString LengthText(double metres) {
  CString text;
  if (1.0 <= metres) {
    text.Format(L"%.0fm", metres);
  } else {
    text.Format(L"%.0fcm", metres * 100.0);
  }
  return text;
}

}  // namespace

void DrawPaperFrame(CDC& dc, const PaperFrame& frame) {
  const CScopedSelect black(dc, BLACK_PEN);
  DrawPolyline(dc, frame.Outline());
}

void DrawNorthArrow(CDC& dc, const CViewState& view) {
  const CPen red(PS_SOLID, 1, kRed);
  const CScopedSelect pen(dc, red);
  DrawPolyline(dc, NorthArrowOf(view));
}

void DrawScaleBar(CDC& dc, const CViewState& view, bool vertical, CFont& font) {
  const auto bar = ScaleBarOf(view, vertical);
  if (!bar) return;
  const int n = bar->length;
  {
    const CPen blue(PS_SOLID, 1, kBlue);
    const CScopedSelect pen(dc, blue);
    dc.MoveTo(8, 5);
    dc.LineTo(5, 5);
    dc.LineTo(5, n + 5);
    dc.LineTo(8, n + 5);
  }
  const CString text = LengthText(bar->value);
  const CScopedSelect selected_font(dc, font);
  RECT rect{9, n + 3, 9 + 10 * text.GetLength(), n + 53};
  dc.DrawText(text, text.GetLength(), &rect, DT_NOCLIP);
}

}  // namespace tavix
