#include "host/tools/sheet_frame.h"

#include "host/app/display_text.h"
#include "host/plot/plot_instance.h"
#include "host/plot/plot_pane.h"

namespace fieldhost {
namespace {

constexpr int kTenthsPerInch = 254;  // of a millimetre

// 0 without a plot window or a frame.
int ReportedScale() {
  int scale = 0;
  Tavix_GetWakScl(&scale);
  return scale;
}

}  // namespace

void SheetFrame::TurnOn() const {
  Tavix_SetWak(kOn, kTenthsPerInch, sheet_->Height(), kTenthsPerInch, sheet_->Width());
  Tavix_WakDsp(kOn);
}

GroundPosition SheetFrame::Origin() {
  GroundPosition origin;
  Tavix_GetWakGen(&origin.north, &origin.east);
  return origin;
}

// The first move may miss by up to a pixel (see Tavix_SetWakGen), and the second corrects it: else
// a frame that is laid out again and again would creep away.
void SheetFrame::PutOriginOn(const GroundPosition& place) {
  PlotPane::Redraw();
  Tavix_SetWakGen(place.north, place.east);
  PlotPane::Redraw();
  const GroundPosition reached = Origin();
  Tavix_SetWakGen(2 * place.north - reached.north, 2 * place.east - reached.east);
  PlotPane::Redraw();
}

void SheetFrame::SetScale(int scale) {
  Tavix_SetWakScl(scale);
  given_scale_ = {scale, ReportedScale()};
}

void SheetFrame::Show(const Sheet& sheet) {
  GroundPosition origin = Origin();
  sheet_ = sheet;
  TurnOn();
  if (!placed_) {
    int degrees = 0;
    Tavix_GetAng(&degrees);
    origin = OriginAboutSameMiddle(Origin(), sheet, ReportedScale(), degrees);
  }
  SetScale(sheet.scale);
  PutOriginOn(origin);
}

void SheetFrame::Remove() {
  sheet_.reset();
  placed_ = false;
  Tavix_SetWak(kOff, 0, 0, 0, 0);
  PlotPane::Redraw();
}

std::optional<Sheet> SheetFrame::Now() const {
  std::optional<Sheet> now = sheet_;
  if (now) now->scale = ScaleNow(ReportedScale(), given_scale_);
  return now;
}

CString SheetFrame::Text() const {
  const std::optional<Sheet> now = Now();
  if (!now) return CString();
  CString scale;
  scale.Format(now->landscape ? L" landscape 1:%d  " : L" 1:%d  ", now->scale);
  return WideOf(now->paper.name) + scale + PositionText(Origin());
}

void SheetFrame::MoveTo(const GroundPosition& origin) {
  if (!sheet_) return;
  placed_ = true;
  PutOriginOn(origin);
}

void SheetFrame::Keep() {
  // Below 1 there is no window, or it is zoomed in past 1:1.
  if (!sheet_ || ReportedScale() < 1) return;
  sheet_ = Now();
  kept_origin_ = Origin();
}

void SheetFrame::LayOut() {
  if (!sheet_) return;
  TurnOn();
  SetScale(sheet_->scale);
  PutOriginOn(kept_origin_);
}

Progress MoveSheetTool::Begin() {
  if (!frame_.Now()) {
    Say(L"There is no sheet to move: choose its paper and scale first.");
    return Progress::kDone;
  }
  AskForPlace();
  return Progress::kGoesOn;
}

void MoveSheetTool::AskForPlace() { Say(L"Sheet: tap the place of its bottom left corner."); }

Progress MoveSheetTool::PositionTapped(const GroundPosition& position) {
  frame_.MoveTo(position);
  Say(frame_.Text());
  return Progress::kDone;
}

// Nothing is moved before the tap.
Progress MoveSheetTool::Finish(Ending) {
  AskForPlace();
  return Progress::kGoesOn;
}

}  // namespace fieldhost
