// The plot window's stylus handling: picking, band zoom and panning.
#include <cmath>

#include "window/plot_window.h"

namespace tavix {
namespace {

ScreenPoint ToScreen(CPoint point) {
  return {static_cast<int>(point.x), static_cast<int>(point.y)};
}

}  // namespace

void CPlotWnd::OnLButtonDown(UINT flags, CPoint point) {
  // A disabled button lets its taps through to the window; they are no taps on the plot.
  if (buttons_.Covers(point)) {
    CWnd::OnLButtonDown(flags, point);
    return;
  }
  stylus_.Down(ToScreen(point));
  if (!pan_mode_ && band_zoom_.IsOn()) band_.Begin(*this, ToScreen(point));
  CWnd::OnLButtonDown(flags, point);
  // So that a drag that leaves the window still ends. Comes last: a window of the host that loses
  // the capture is told, and may end the instance.
  SetCapture();
}

void CPlotWnd::OnMouseMove(UINT flags, CPoint point) {
  if (!pan_mode_ && band_zoom_.IsOn() && stylus_.IsDown()) {
    band_.MoveTo(*this, BandCorners(band_.FirstCorner(), ToScreen(point)));
  }
  CWnd::OnMouseMove(flags, point);
}

void CPlotWnd::OnLButtonUp(UINT flags, CPoint point) {
  if (const auto gesture = stylus_.Up(ToScreen(point))) {
    if (GetCapture() == this) ReleaseCapture();
    band_.Erase(*this);
    if (pan_mode_) {
      FinishPan(*gesture);
    } else if (band_zoom_.IsOn()) {
      FinishBand(*gesture);
    } else if (gesture->IsTap() && !display_3d_) {
      Pick(gesture->up);
    }
  }
  CWnd::OnLButtonUp(flags, point);
}

// Somebody else took the stylus: its going up will not be seen here.
void CPlotWnd::OnCaptureChanged(CWnd* taker) {
  if (stylus_.IsDown() && taker != this) {
    stylus_.Cancel();
    band_.Erase(*this);
  }
  CWnd::OnCaptureChanged(taker);
}

GroundPoint CPlotWnd::GroundUnder(ScreenPoint at) const {
  return links_.view->ScreenToGround(display_3d_ ? Projection().Unproject(at) : at);
}

// The outline of a plan rectangle: in the side view its sides run along the projected axes.
std::array<ScreenPoint, 3> CPlotWnd::BandCorners(ScreenPoint first, ScreenPoint opposite) const {
  if (!display_3d_) return {{{opposite.x, first.y}, opposite, {first.x, opposite.y}}};
  const SideProjection projection = Projection();
  const ScreenPoint a = projection.Unproject(first);
  const ScreenPoint b = projection.Unproject(opposite);
  return {{projection.Project({b.x, a.y}), opposite, projection.Project({a.x, b.y})}};
}

void CPlotWnd::FinishBand(const StylusGesture& gesture) {
  const auto corners = band_zoom_.Take(gesture, GroundUnder(gesture.down), GroundUnder(gesture.up));
  if (!corners) return;
  const auto [a, b] = *corners;
  ZoomTo({std::fabs(b.east - a.east), std::fabs(b.north - a.north)},
         {(a.north + b.north) * 0.5, (a.east + b.east) * 0.5});
  EndBandZoom();
}

// A tap centres the view on it; in a drag the map follows the stylus. The middle that moves is that
// of the drawing area, so that the map keeps to the stylus with the button column shown too.
void CPlotWnd::FinishPan(const StylusGesture& gesture) {
  const GroundPoint to = GroundUnder(gesture.up);
  if (gesture.IsTap()) {
    PanTo(to);
    return;
  }
  const GroundPoint from = GroundUnder(gesture.down);
  const GroundPoint middle = links_.view->Centre();
  PanTo({middle.north + from.north - to.north, middle.east + from.east - to.east});
}

void CPlotWnd::Pick(ScreenPoint at) {
  constexpr int kTolerance = 10;  // pixels
  const GroundPoint tapped = GroundUnder(at);
  std::int32_t key = 0;
  const bool found =
      links_.points->FindNearest(links_.view->PixelsToLength(kTolerance), tapped, &key) == 0;
  if (capture_.IsOn()) {
    CaptureCoordinate(tapped, found ? &key : nullptr);
  } else if (found) {
    PostCommand(notify_id_, key);
  }
}

// A point that was hit gives its own coordinates, empty ground the tapped ones.
void CPlotWnd::CaptureCoordinate(GroundPoint tapped, const std::int32_t* key) {
  GroundPoint coordinate = tapped;
  if (key && links_.points->Find(*key) == 0) links_.points->GetCurCrd(&coordinate);
  capture_.Capture(coordinate);
  PostCommand(static_cast<UINT>(capture_.Command()), 0);
}

void CPlotWnd::PostCommand(UINT command, LPARAM value) {
  ::PostMessageW(::GetParent(m_hWnd), WM_COMMAND, command, value);
}

}  // namespace tavix
