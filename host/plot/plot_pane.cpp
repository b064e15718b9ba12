#include "host/plot/plot_pane.h"

#include <tavix/tavix.h>

namespace fieldhost {
namespace {

constexpr int kSlot = 0;
constexpr BYTE kOff = 0;
constexpr BYTE kOn = 1;
constexpr BYTE kFitView = 0;
constexpr BYTE kKeepView = 1;

}  // namespace

PlotPane::PlotPane() {
  Tavix_SetIdx(kSlot);
  Tavix_Crt();
  entry_.AddLegends();
}

PlotPane::~PlotPane() {
  Tavix_SetIdx(kSlot);
  Tavix_Del();
}

bool PlotPane::Place(CWnd& parent, const CRect& rect, UINT notify_id) {
  if (Tavix_LnkRct(&parent, rect.left, rect.top, rect.right, rect.bottom, notify_id) != 0) {
    return false;
  }
  Tavix_SetBtn(shows_buttons_ ? kOn : kOff);
  // The modes were the old window's.
  if (captures_) Tavix_CrdStt(static_cast<int>(capture_id_));
  Tavix_SclBarDsp(shows_scale_bar_ ? kOn : kOff);
  Show(shown_);
  return true;
}

SurveyCounts PlotPane::Add(const Survey& survey) {
  Tavix_DrwFlg(kOff);
  const SurveyCounts refused = entry_.Enter(survey);
  Tavix_Drw(kFitView);
  return refused;
}

bool PlotPane::MovePoint(int key, const GroundPosition& place) {
  if (!entry_.MovePoint(key, place)) return false;
  Redraw();
  return true;
}

void PlotPane::Clear() {
  Tavix_DrwClr();
  entry_.StartOver();
  Redraw();
}

void PlotPane::Show(bool show) {
  shown_ = show;
  if (show) Redraw();
  Tavix_Dsp(show ? kOn : kOff);
}

void PlotPane::ShowWholeView() { Tavix_Drw(kFitView); }

void PlotPane::ShowButtons(bool show) {
  shows_buttons_ = show;
  Tavix_SetBtn(show ? kOn : kOff);
  Redraw();
}

void PlotPane::ShowScaleBar(bool show) {
  shows_scale_bar_ = show;
  Tavix_SclBarDsp(show ? kOn : kOff);
  Redraw();
}

void PlotPane::Redraw() { Tavix_Drw(kKeepView); }

void PlotPane::TakeFocus() {
  if (CWnd* window = Tavix_Wnd()) window->SetFocus();
}

void PlotPane::CaptureCoordinates(bool on, UINT capture_id) {
  captures_ = on;
  capture_id_ = capture_id;
  if (on) {
    Tavix_CrdStt(static_cast<int>(capture_id));
  } else {
    Tavix_CrdEnd();
  }
}

std::optional<GroundPosition> PlotPane::CapturedCoordinate() {
  GroundPosition position;
  if (Tavix_CrdGet(&position.north, &position.east) != 0) return std::nullopt;
  return position;
}

std::optional<TappedPoint> PlotPane::PointOf(int key) {
  TappedPoint point;
  if (Tavix_GetPntNoNam(key, &point.number, &point.name) != 0 ||
      Tavix_GetPntCrd(key, &point.north, &point.east) != 0) {
    return std::nullopt;
  }
  return point;
}

}  // namespace fieldhost
