// What the plot window's buttons do.
#include <algorithm>
#include <limits>

#include "window/plot_window.h"
#include "window/refusal_beep.h"

namespace tavix {
namespace {

constexpr double kZoomFactor = 1.5;

}  // namespace

BOOL CPlotWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
  const UINT command = LOWORD(wParam);
  band_.Erase(*this);
  switch (command) {
#define TAVIX_BUTTON_COMMAND(id, name, pressed_in) \
  case id:                                         \
    On##name();                                    \
    return TRUE;
    TAVIX_BUTTONS(TAVIX_BUTTON_COMMAND)
#undef TAVIX_BUTTON_COMMAND
    default:
      break;
  }
  // Compatibility: the ids between the buttons are taken and do nothing.
  if (kScrollUpButton < command && command < kScrollDownButton) return TRUE;
  return CWnd::OnCommand(wParam, lParam);
}

// In whole degrees. Whatever the file has carried, its negative is a number too.
int CPlotWnd::RotationStep() const {
  return std::max(links_.legend->Table().RotationStep(), -std::numeric_limits<int>::max());
}

void CPlotWnd::OnScrollUp() {
  if (!buttons_.ScrollUp()) BeepOnRefusal();
}

void CPlotWnd::OnScrollDown() {
  if (!buttons_.ScrollDown()) BeepOnRefusal();
}

void CPlotWnd::OnBandZoom() {
  if (band_zoom_.IsOn()) return EndBandZoom();
  EndPan();
  band_zoom_.TurnOn();
  buttons_.SetPressed(kBandZoomButton, true);
  buttons_.DisableAllBut(kBandZoomButton);
}

void CPlotWnd::EndBandZoom() {
  if (!band_zoom_.IsOn()) return;
  band_zoom_.TurnOff();
  buttons_.SetPressed(kBandZoomButton, false);
  buttons_.EnableAll();
}

void CPlotWnd::OnPan() {
  if (pan_mode_) return EndPan();
  EndBandZoom();  // only one of the two modes is on at a time
  pan_mode_ = true;
  buttons_.SetPressed(kPanButton, true);
}

void CPlotWnd::EndPan() {
  if (!pan_mode_) return;
  pan_mode_ = false;
  buttons_.SetPressed(kPanButton, false);
}

void CPlotWnd::OnZoomIn() {
  BeepIfCut(links_.view->ZoomIn(kZoomFactor));
  ZoomedByButton();
}

void CPlotWnd::OnZoomOut() {
  links_.view->ZoomOut(kZoomFactor);
  ZoomedByButton();
}

void CPlotWnd::ZoomedByButton() {
  frame_.MarkScaleStale();
  ViewChanged();
}

// Fits to data that have changed since the last fit; with none that have, the whole view and the
// view before it take turns.
void CPlotWnd::OnWholeView() {
  if (TakeStale()) {
    FitView();
  } else {
    links_.view->ToggleExtents();
  }
  ZoomedByButton();
}

void CPlotWnd::OnRefresh() { ViewChanged(); }

void CPlotWnd::OnRotate() { RotateBy(RotationStep()); }

void CPlotWnd::OnRotateBack() { RotateBy(-RotationStep()); }

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
