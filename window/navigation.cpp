#include "window/navigation.h"

#include "window/output.h"
#include "window/plot_display.h"

namespace tavix {
namespace {

constexpr double kZoomFactor = 1.5;

}  // namespace

int Navigation::ZoomTo(GroundSize size, GroundPoint centre) {
  BeepIfCut(view_.ZoomToArea(size, centre));
  return display_.ViewChanged();
}

int Navigation::ZoomToBox(GroundPoint south_west, GroundPoint north_east) {
  const auto [south, west] = south_west;
  const auto [north, east] = north_east;
  return ZoomTo({east - west, north - south}, {(south + north) * 0.5, (west + east) * 0.5});
}

int Navigation::ZoomToCircle(GroundPoint centre, double radius) {
  return ZoomTo({radius * 2.0, radius * 2.0}, centre);
}

int Navigation::PanTo(GroundPoint centre) {
  view_.SetCentre(centre);
  return display_.ViewChanged();
}

void Navigation::ZoomIn() {
  BeepIfCut(view_.ZoomIn(kZoomFactor));
  Zoomed();
}

void Navigation::ZoomOut() {
  view_.ZoomOut(kZoomFactor);
  Zoomed();
}

void Navigation::ZoomExtents() {
  Scene& scene = display_.Shown();
  if (scene.TakeDirty()) {
    scene.Fit();
  } else {
    view_.ToggleExtents();
  }
  Zoomed();
}

// Compatibility: the host's own zooms leave the frame's scale as it was.
void Navigation::Zoomed() {
  display_.Plan().Frame().MarkScaleDirty();
  display_.ViewChanged();
}

void Navigation::Rotate(int direction) {
  display_.Shown().RotateByStep(direction);
  display_.ViewChanged();
}

void Navigation::PressArrow(WPARAM key) {
  display_.Shown().PressArrow(key);
  display_.ViewChanged();
}

void Navigation::SetRatio(int vertical, int horizontal) {
  ratio_ = {true, vertical, horizontal};
  view_.SetRatio(static_cast<double>(vertical) / horizontal);
}

}  // namespace tavix
