// What the plot window's buttons do.
#include <algorithm>
#include <limits>

#include "window/plot_window.h"
#include "window/refusal_beep.h"
#include "window/resource.h"

namespace tavix {
namespace {

constexpr double kZoomFactor = 1.5;

}  // namespace

BOOL CPlotWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
  const UINT command = LOWORD(wParam);
  band_.Erase(*this);
  if (command < IDC_SCROLL_UP || command > IDC_SCROLL_DOWN) return CWnd::OnCommand(wParam, lParam);
  RunCommand(command);
  return TRUE;
}

void CPlotWnd::RunCommand(UINT command) {
  switch (command) {
    case IDC_SCROLL_UP:
      return ScrollButtons(true);
    case IDC_BAND_ZOOM:
      return ToggleBandZoom();
    case IDC_ZOOM_IN:
      return ZoomByButton(true);
    case IDC_ZOOM_OUT:
      return ZoomByButton(false);
    case IDC_WHOLE:
      return ShowWhole();
    case IDC_PAN:
      return TogglePan();
    case IDC_REFRESH:
      ViewChanged();
      return;
    case IDC_SETTINGS:
      return EditSettings();
    case IDC_ROTATE:
      return RotateBy(RotationStep());
    case IDC_ROTATE_BACK:
      return RotateBy(-RotationStep());
    case IDC_SCROLL_DOWN:
      return ScrollButtons(false);
    default:
      return;
  }
}

// In whole degrees. Whatever the file has carried, its negative is a number too.
int CPlotWnd::RotationStep() const {
  return std::max(links_.legend->Table().RotationStep(), -std::numeric_limits<int>::max());
}

void CPlotWnd::ScrollButtons(bool up) {
  if (!(up ? buttons_.ScrollUp() : buttons_.ScrollDown())) BeepOnRefusal();
}

void CPlotWnd::ToggleBandZoom() {
  if (band_zoom_.IsOn()) return EndBandZoom();
  EndPan();
  band_zoom_.TurnOn();
  buttons_.SetPressed(IDC_BAND_ZOOM, true);
  buttons_.DisableAllBut(IDC_BAND_ZOOM);
}

void CPlotWnd::EndBandZoom() {
  if (!band_zoom_.IsOn()) return;
  band_zoom_.TurnOff();
  buttons_.SetPressed(IDC_BAND_ZOOM, false);
  buttons_.EnableAll();
}

void CPlotWnd::TogglePan() {
  if (pan_mode_) return EndPan();
  EndBandZoom();  // only one of the two modes is on at a time
  pan_mode_ = true;
  buttons_.SetPressed(IDC_PAN, true);
}

void CPlotWnd::EndPan() {
  if (!pan_mode_) return;
  pan_mode_ = false;
  buttons_.SetPressed(IDC_PAN, false);
}

void CPlotWnd::ZoomByButton(bool in) {
  if (in) {
    BeepIfCut(links_.view->ZoomIn(kZoomFactor));
  } else {
    links_.view->ZoomOut(kZoomFactor);
  }
  frame_.MarkScaleStale();
  ViewChanged();
}

// Fits to data that have changed since the last fit; with none that have, the whole view and the
// view before it take turns.
void CPlotWnd::ShowWhole() {
  if (TakeStale()) {
    FitView();
  } else {
    links_.view->ToggleHome();
  }
  frame_.MarkScaleStale();
  ViewChanged();
}

// A turned view has another extent: the whole view is to be fitted anew.
void CPlotWnd::RotateBy(int degrees) {
  links_.view->RotateBy(degrees);
  MarkStale();
  ViewChanged();
}

void CPlotWnd::MarkStale() {
  if (display_3d_) {
    links_.points3->SetChanged(true);
    return;
  }
  links_.points->SetChanged(true);
  links_.lines->SetChanged(true);
  links_.figures->SetChanged(true);
}

bool CPlotWnd::TakeStale() {
  if (!display_3d_) return TakePlanStale();
  const bool stale = links_.points3->Changed();
  links_.points3->SetChanged(false);
  return stale;
}

bool CPlotWnd::TakePlanStale() {
  const bool stale =
      links_.points->Changed() || links_.lines->Changed() || links_.figures->Changed();
  links_.points->SetChanged(false);
  links_.lines->SetChanged(false);
  links_.figures->SetChanged(false);
  return stale;
}

}  // namespace tavix
