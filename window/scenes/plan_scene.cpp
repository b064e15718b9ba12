#include "window/scenes/plan_scene.h"

#include "view/extent.h"
#include "window/buttons/button_column_layout.h"
#include "window/immediate_surfaces.h"
#include "window/output.h"

namespace tavix {

PlanScene::PlanScene(const PlotLinks& links, const OverlaySurfaces& surfaces,
                     ImmediateSurfaces& immediate, const RatioSetting& ratio, RubberBand& band)
    : Scene(links.view, links.legend),
      links_(links),
      surfaces_(surfaces),
      immediate_(immediate),
      frame_(links.view),
      north_arrow_(links.view),
      scale_bar_(links.view, ratio),
      traced_line_(surfaces),
      moved_point_(surfaces),
      overlays_{&frame_, &north_arrow_, &scale_bar_, &traced_line_, &moved_point_, &band} {}

int PlanScene::Fit() {
  GroundExtent points;
  GroundExtent figures;
  const int points_code = links_.points.GetExtent(&points);
  const int figures_code = links_.figures.GetExtent(&figures);
  if (points_code != 0 && figures_code != 0) return points_code;

  ExtentBuilder builder;
  if (points_code == 0) builder.Include(points);
  if (figures_code == 0) builder.Include(figures);
  if (moved_point_.IsDrawn()) builder.Include(moved_point_.Position());
  const GroundExtent& extent = builder.Extent();
  const PaperFrame& frame = frame_.Sheet();
  if (frame.IsOn()) {
    BeepIfCut(view_.FitToRect(frame.Width(), frame.Height(), extent.Size(), extent.Centre()));
    frame_.MarkScaleDirty();
  } else {
    BeepIfCut(view_.FitToArea(extent.Size(), extent.Centre()));
  }
  return 0;
}

PlotData PlanScene::Data() const {
  return {view_, legend_, links_.points, links_.lines, links_.figures, draws_lines_};
}

void PlanScene::LeaveOutNewFigures() {
  if (!figures_shown_) figures_shown_ = links_.figures.Count();
}

void PlanScene::Draw(PlanCanvas& canvas) const {
  PlotData data = Data();
  if (figures_shown_) data.figure_count = *figures_shown_;
  DrawPlanView(canvas, data);
}

void PlanScene::DrawAtOnce(const std::function<void(PlanCanvas&)>& draw) {
  if (!surfaces_.window.m_hWnd) return;
  for (Overlay* overlay : overlays_) overlay->TakeOff();
  immediate_.Draw(draw);
  for (Overlay* overlay : overlays_) overlay->DrawOver();
}

void PlanScene::DrawNew(const Point& point) {
  DrawAtOnce([&](PlanCanvas& canvas) { DrawSinglePoint(canvas, Data(), point); });
}

void PlanScene::DrawNew(const Line& line) {
  DrawAtOnce([&](PlanCanvas& canvas) { DrawSingleLine(canvas, Data(), line); });
}

GroundPoint PlanScene::GroundUnder(ScreenPoint at) const { return view_.ScreenToGround(at); }

std::array<ScreenPoint, 3> PlanScene::BandCorners(ScreenPoint first, ScreenPoint opposite) const {
  return {{{opposite.x, first.y}, opposite, {first.x, opposite.y}}};
}

void PlanScene::MarkDirty() {
  links_.points.SetChanged(true);
  links_.lines.SetChanged(true);
  links_.figures.SetChanged(true);
}

bool PlanScene::TakeDirty() {
  const bool dirty = links_.points.Changed() || links_.lines.Changed() || links_.figures.Changed();
  links_.points.SetChanged(false);
  links_.lines.SetChanged(false);
  links_.figures.SetChanged(false);
  return dirty;
}

void PlanScene::PressArrow(WPARAM key) {
  CRect client;
  surfaces_.window.GetClientRect(&client);
  const int width = client.right - ButtonColumnLayout::kWidth;
  const int height = client.bottom;
  ScreenPoint edge;
  switch (key) {
    case VK_LEFT:
      edge = {0, height / 2};
      break;
    case VK_UP:
      edge = {width / 2, 0};
      break;
    case VK_RIGHT:
      edge = {width, height / 2};
      break;
    default:
      edge = {width / 2, height};
      break;
  }
  view_.SetCentre(GroundUnder(edge));
}

}  // namespace tavix
