#include "host/plot/side_pane.h"

#include <cmath>
#include <optional>

#include "host/app/display_text.h"
#include "host/plot/plot_instance.h"
#include "host/plot/plot_legends.h"

namespace fieldhost {
namespace {

constexpr UINT kNoNotification = 0;  // the side view reports no taps
constexpr SideProjection kProjection = {kTavixSideRight, kTavixSideUp, kTavixSideAcross,
                                        kTavixSideRise};

}  // namespace

SidePane::SidePane(SurveyDocument& document) : document_(document) {
  const CurrentSlot current(kSideSlot);
  Tavix_Crt();
  PreparePointLegends();
  document_.Attach(*this);
}

SidePane::~SidePane() {
  document_.Detach(*this);
  if (shown_) KeepLegends();
  const CurrentSlot current(kSideSlot);
  Tavix_Del();
}

void SidePane::SetPlace(CWnd& parent, const CRect& rect) {
  parent_ = &parent;
  place_ = rect;
  needs_window_ = true;
  if (shown_) Show();
}

void SidePane::SurveyAdded(const SurveyAddition& addition) {
  const CurrentSlot current(kSideSlot);
  const std::size_t end = document_.Contents().points.size();
  for (std::size_t i = addition.first_point; i < end; ++i) Enter(i);
  needs_fit_ = true;
  if (shown_) Show();
}

// Entering a key again replaces all of its point.
void SidePane::Enter(std::size_t point) const {
  const SurveyPoint& entered = document_.Contents().points[point];
  if (!entered.height) return;
  Tavix_SelPntHan(PointLegend(entered.kind));
  Tavix_EntPnt3(SurveyDocument::KeyOf(point), entered.number, WideOf(entered.name), entered.north,
                entered.east, *entered.height);
}

void SidePane::PointMoved(int key) {
  const CurrentSlot current(kSideSlot);
  const std::size_t point = SurveyDocument::PlaceOf(key);
  if (!document_.Contents().points[point].height) return;
  Enter(point);
  needs_fit_ = true;
}

void SidePane::SurveyCleared() {
  const CurrentSlot current(kSideSlot);
  Tavix_DrwClr();
  needs_fit_ = true;
}

bool SidePane::Show() {
  const CurrentSlot current(kSideSlot);
  if (needs_window_ && !MakeWindow()) return false;
  if (!shown_) CopyPointLegends(kPlanSlot);
  if (needs_fit_) {
    Fit();
  } else {
    Tavix_Drw(kKeepView);
  }
  Tavix_Dsp(kOn);
  shown_ = true;
  return true;
}

// A new window shows the plan at first; turning it to the side turns the view back to 0 degrees.
bool SidePane::MakeWindow() {
  if (!parent_ || Tavix_LnkRct(parent_, place_.left, place_.top, place_.right, place_.bottom,
                               kNoNotification) != 0) {
    return false;
  }
  int degrees = 0;
  Tavix_GetAng(&degrees);
  Tavix_Dsp3D(kOn);
  Tavix_SetAng(degrees);
  Tavix_SetBtn(shows_buttons_ ? kOn : kOff);
  needs_window_ = false;
  needs_fit_ = true;
  return true;
}

void SidePane::KeepLegends() {
  const CurrentSlot plan(kPlanSlot);
  CopyPointLegends(kSideSlot);
}

void SidePane::Hide() {
  KeepLegends();
  const CurrentSlot current(kSideSlot);
  Tavix_Dsp(kOff);
  shown_ = false;
}

void SidePane::ShowWholeView() {
  const CurrentSlot current(kSideSlot);
  Fit();
}

// The library's own fit sets the height base; the zoom then brings all points into the window.
void SidePane::Fit() {
  Tavix_Drw(kFitView);
  const PictureSize area = DrawingArea(*Tavix_Wnd(), shows_buttons_);
  SideWindow window{area.width, area.height, 0, std::floor(document_.Heights().lowest)};
  Tavix_GetAng(&window.degrees);
  if (const auto square = FitSideView(Points(), window, kProjection)) {
    const double half = square->side / 2;
    Tavix_Zom(square->north - half, square->east - half, square->north + half, square->east + half);
  }
  needs_fit_ = false;
}

std::vector<HighPoint> SidePane::Points() const {
  std::vector<HighPoint> points;
  for (const SurveyPoint& point : document_.Contents().points) {
    if (point.height) points.push_back({point.north, point.east, *point.height});
  }
  return points;
}

void SidePane::ShowButtons(bool show) {
  const CurrentSlot current(kSideSlot);
  shows_buttons_ = show;
  Tavix_SetBtn(show ? kOn : kOff);
  if (shown_) Tavix_Drw(kKeepView);
}

void SidePane::TakeFocus() {
  const CurrentSlot current(kSideSlot);
  if (CWnd* window = Tavix_Wnd()) window->SetFocus();
}

}  // namespace fieldhost
