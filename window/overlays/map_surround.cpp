#include "window/overlays/map_surround.h"

#include <framework/scoped_select.h>

#include <array>

#include "draw/gdi_scopes.h"
#include "view/scale_bar.h"
#include "window/output.h"

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

bool PaperFrameOverlay::SetScale(int n) {
  if (!frame_.IsOn() || n < 1) return false;
  BeepIfCut(frame_.SetScale(view_, n));
  return true;
}

bool PaperFrameOverlay::SetOrigin(GroundPoint origin) {
  if (!frame_.IsOn()) return false;
  frame_.SetOrigin(view_, origin);
  return true;
}

std::optional<int> PaperFrameOverlay::Scale() const {
  return frame_.IsOn() ? std::optional(frame_.Scale()) : std::nullopt;
}

std::optional<GroundPoint> PaperFrameOverlay::Origin() const {
  return frame_.IsOn() ? std::optional(frame_.Origin()) : std::nullopt;
}

// A paint makes the frame follow the view: a host can turn the view, or change the drawing area,
// without a redraw. Compatibility: the origin that the host reads back is then the one before until
// the window has painted.
void PaperFrameOverlay::PutBack(CDC& paint) {
  if (frame_.IsShown()) {
    const CScopedSelect black(paint, BLACK_PEN);
    DrawPolyline(paint, frame_.Outline());
  }
  FollowView();
}

void NorthArrowOverlay::PutBack(CDC& paint) {
  if (!ShowsNorthArrow(view_)) return;
  const CPen red(PS_SOLID, 1, kRed);
  const CScopedSelect pen(paint, red);
  DrawPolyline(paint, NorthArrowOf(view_));
}

ScaleBarOverlay::ScaleBarOverlay(const CViewState& view, const RatioSetting& ratio)
    : view_(view), ratio_(ratio) {
  constexpr int kTextHeight = 10;  // pixels
  const LOGFONTW font = LabelFont(kTextHeight);
  font_.CreateFontIndirect(&font);
}

void ScaleBarOverlay::PutBack(CDC& paint) {
  // An exaggerated view that is turned has no one scale.
  if (!shown_ || (ratio_.given && ShowsNorthArrow(view_))) return;
  const auto bar = ScaleBarOf(view_, ratio_.given);
  if (!bar) return;
  const int n = bar->length;
  {
    const CPen blue(PS_SOLID, 1, kBlue);
    const CScopedSelect pen(paint, blue);
    paint.MoveTo(8, 5);
    paint.LineTo(5, 5);
    paint.LineTo(5, n + 5);
    paint.LineTo(8, n + 5);
  }
  const CString text = LengthText(bar->value);
  const CScopedSelect selected_font(paint, font_);
  RECT rect{9, n + 3, 9 + 10 * text.GetLength(), n + 53};
  paint.DrawText(text, text.GetLength(), &rect, DT_NOCLIP);
}

}  // namespace tavix
