#include "host/plot/plot_pane.h"

#include "host/plot/plot_instance.h"

namespace fieldhost {

PlotPane::Instance::Instance() {
  Tavix_SetIdx(kPlanSlot);
  Tavix_Crt();
}

PlotPane::Instance::~Instance() {
  Tavix_SetIdx(kPlanSlot);
  Tavix_Del();
}

PlotPane::PlotPane(SurveyDocument& document) : document_(document) { document_.Attach(*this); }

PlotPane::~PlotPane() { document_.Detach(*this); }

bool PlotPane::Place(CWnd& parent, const CRect& rect, UINT notify_id) {
  if (Tavix_LnkRct(&parent, rect.left, rect.top, rect.right, rect.bottom, notify_id) != 0) {
    return false;
  }
  Tavix_SetBtn(shows_buttons_ ? kOn : kOff);
  // The modes went with the old window.
  if (captures_) Tavix_CrdStt(static_cast<int>(capture_id_));
  Tavix_SclBarDsp(shows_scale_bar_ ? kOn : kOff);
  Show(shown_);
  return true;
}

void PlotPane::SurveyAdded(const SurveyAddition& addition) {
  Tavix_DrwFlg(kOff);
  entry_.Enter(addition);
  Tavix_Drw(kFitView);
}

void PlotPane::SurveyCleared() {
  Tavix_DrwClr();
  Redraw();
}

void PlotPane::PointMoved(int key) {
  entry_.FollowPoint(key);
  Redraw();
}

void PlotPane::FigureDrawn(const DrawnFigure& figure) {
  entry_.Enter(figure);
  Redraw();
}

void PlotPane::FigureDeleted(int number) {
  Tavix_DelFig(number);
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

}  // namespace fieldhost
