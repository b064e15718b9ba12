#include "host/plot/side_pane.h"

#include <tavix/tavix.h>

#include <cmath>
#include <optional>

#include "host/app/wide_text.h"
#include "host/plot/current_slot.h"
#include "host/plot/plot_area.h"
#include "host/plot/point_legends.h"

namespace fieldhost {
namespace {

constexpr int kPlanSlot = 0;
constexpr int kSlot = 1;
constexpr BYTE kOff = 0;
constexpr BYTE kOn = 1;
constexpr BYTE kFitView = 0;
constexpr BYTE kKeepView = 1;
constexpr UINT kNoNotification = 0;  // the side view reports no taps

}  // namespace

SidePane::SidePane() {
  const CurrentSlot current(kSlot);
  Tavix_Crt();
  PreparePointLegends();
}

SidePane::~SidePane() {
  if (shown_) KeepLook();
  const CurrentSlot current(kSlot);
  Tavix_Del();
}

void SidePane::SetPlace(CWnd& parent, const CRect& rect) {
  parent_ = &parent;
  place_ = rect;
  needs_window_ = true;
  if (shown_) Show();
}

void SidePane::Add(const Survey& survey) {
  const CurrentSlot current(kSlot);
  for (const SurveyPoint& point : survey.points) {
    legends_.push_back(PointLegend(point.kind));
    if (!point.height) continue;
    const int key = static_cast<int>(legends_.size());
    Tavix_SelPntHan(legends_.back());
    Tavix_EntPnt3(key, point.number, WideOf(point.name), point.north, point.east, *point.height);
  }
  heights_.Include(survey);
  needs_fit_ = true;
  if (shown_) Show();
}

// Entering a key again replaces all of its point, the legend by the one that is selected.
void SidePane::MovePoint(int key, const GroundPosition& place) {
  const CurrentSlot current(kSlot);
  int number = 0;
  CString name;
  double north = 0.0;
  double east = 0.0;
  double height = 0.0;
  if (Tavix_GetPnt3NoNam(key, &number, &name) != 0 ||
      Tavix_GetPnt3Crd(key, &north, &east, &height) != 0) {
    return;
  }
  Tavix_SelPntHan(legends_[static_cast<std::size_t>(key) - 1]);
  Tavix_EntPnt3(key, number, name, place.north, place.east, height);
  needs_fit_ = true;
}

void SidePane::Clear() {
  const CurrentSlot current(kSlot);
  Tavix_DrwClr();
  heights_ = {};
  legends_.clear();
  needs_fit_ = true;
}

bool SidePane::Show() {
  const CurrentSlot current(kSlot);
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

void SidePane::KeepLook() {
  const CurrentSlot plan(kPlanSlot);
  CopyPointLegends(kSlot);
}

void SidePane::Hide() {
  KeepLook();
  const CurrentSlot current(kSlot);
  Tavix_Dsp(kOff);
  shown_ = false;
}

void SidePane::ShowWholeView() {
  const CurrentSlot current(kSlot);
  Fit();
}

// The library's own fit sets the height base, below the lowest point; the zoom then brings all into
// the window.
void SidePane::Fit() {
  Tavix_Drw(kFitView);
  const PictureSize area = PlotArea(*Tavix_Wnd(), shows_buttons_);
  SideWindow window{area.width, area.height, 0, std::floor(heights_.lowest)};
  Tavix_GetAng(&window.degrees);
  if (const std::optional<GroundSquare> square = FitSideView(Points(), window)) {
    const double half = square->side / 2;
    Tavix_Zom(square->north - half, square->east - half, square->north + half, square->east + half);
  }
  needs_fit_ = false;
}

std::vector<HighPoint> SidePane::Points() const {
  std::vector<HighPoint> points;
  for (int key = 1; key <= static_cast<int>(legends_.size()); ++key) {
    HighPoint point;
    if (Tavix_GetPnt3Crd(key, &point.north, &point.east, &point.height) == 0) {
      points.push_back(point);
    }
  }
  return points;
}

void SidePane::ShowButtons(bool show) {
  const CurrentSlot current(kSlot);
  shows_buttons_ = show;
  Tavix_SetBtn(show ? kOn : kOff);
  if (shown_) Tavix_Drw(kKeepView);
}

void SidePane::TakeFocus() {
  const CurrentSlot current(kSlot);
  if (CWnd* window = Tavix_Wnd()) window->SetFocus();
}

}  // namespace fieldhost
