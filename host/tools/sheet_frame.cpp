#include "host/tools/sheet_frame.h"

#include <tavix/tavix.h>

#include "host/app/measure_text.h"
#include "host/app/wide_text.h"
#include "host/plot/plot_pane.h"
#include "host/tools/sheet_scale.h"

namespace fieldhost {
namespace {

constexpr BYTE kOff = 0;
constexpr BYTE kOn = 1;
constexpr int kTenthsPerInch = 254;  // of a millimetre

int ToldScale() {
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

// The frame's middle is that of the view to a pixel only, and the library moves the frame as if it
// were exactly. What the first move misses, the second makes up for: else a frame that is laid out
// anew time and again would creep away. Each redraw makes the origin that of the view as it is.
void SheetFrame::PutOriginOn(const GroundPosition& place) {
  PlotPane::Redraw();
  Tavix_SetWakGen(place.north, place.east);
  PlotPane::Redraw();
  const GroundPosition reached = Origin();
  Tavix_SetWakGen(2 * place.north - reached.north, 2 * place.east - reached.east);
  PlotPane::Redraw();
}

void SheetFrame::Show(const Sheet& sheet) {
  GroundPosition origin = Origin();
  sheet_ = sheet;
  TurnOn();
  if (!placed_) {
    int degrees = 0;
    Tavix_GetAng(&degrees);
    origin = OriginAboutSameMiddle(Origin(), sheet, ToldScale(), degrees);
  }
  Tavix_SetWakScl(sheet.scale);
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
  if (now) now->scale = MeantScale(ToldScale(), sheet_->scale);
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
  // No whole number of 1:N: there is no window, or it is zoomed in past 1:1.
  if (!sheet_ || ToldScale() < 1) return;
  sheet_ = Now();
  kept_origin_ = Origin();
}

void SheetFrame::LayOut() {
  if (!sheet_) return;
  TurnOn();
  Tavix_SetWakScl(sheet_->scale);
  PutOriginOn(kept_origin_);
}

}  // namespace fieldhost
