#include "window/scenes/side_scene.h"

#include <cmath>

#include "draw/side_view.h"
#include "view/scale_bar.h"
#include "window/output.h"
#include "window/overlays/rubber_band.h"

namespace tavix {

SideScene::SideScene(const PlotLinks& links, const BackBuffer& buffer, RubberBand& band)
    : Scene(links.view, links.legend), points_(links.points3), buffer_(buffer), overlays_{&band} {}

int SideScene::Fit() {
  GroundExtent3 extent;
  if (const int code = points_.GetExtent(&extent); code != 0) return code;
  BeepIfCut(view_.FitToArea(extent.plan.Size(), extent.plan.Centre()));
  height_base_ = std::floor(extent.min_z);
  return 0;
}

void SideScene::Draw(PlanCanvas& canvas) const {
  const CRect& rect = buffer_.Rect();
  DrawSideView(canvas, {view_, legend_, points_, rect.Width(), rect.Height(), height_base_});
}

SideProjection SideScene::Projection() const { return SideProjection(buffer_.Rect().bottom); }

GroundPoint SideScene::GroundUnder(ScreenPoint at) const {
  return view_.ScreenToGround(Projection().Unproject(at));
}

std::array<ScreenPoint, 3> SideScene::BandCorners(ScreenPoint first, ScreenPoint opposite) const {
  const SideProjection projection = Projection();
  const ScreenPoint a = projection.Unproject(first);
  const ScreenPoint b = projection.Unproject(opposite);
  return {{projection.Project({b.x, a.y}), opposite, projection.Project({a.x, b.y})}};
}

void SideScene::MarkDirty() { points_.SetChanged(true); }

bool SideScene::TakeDirty() {
  const bool dirty = points_.Changed();
  points_.SetChanged(false);
  return dirty;
}

void SideScene::PressArrow(WPARAM key) {
  const double step = DatumStep(view_);
  switch (key) {
    case VK_LEFT:
      return RotateByStep(1);
    case VK_RIGHT:
      return RotateByStep(-1);
    case VK_UP:
      height_base_ += step;
      break;
    default:
      height_base_ -= step;
      break;
  }
  MarkDirty();
}

}  // namespace tavix
