// The side view: the points with heights, standing on the plan laid flat.
#pragma once

#include <array>

#include "view/side_projection.h"
#include "window/scenes/scene.h"

namespace tavix {

class BackBuffer;
class RubberBand;

// Picks nothing and draws nothing at once; nothing but the band stands over it.
class SideScene : public Scene {
 public:
  // Drawn to the size of `buffer`.
  SideScene(const PlotLinks& links, const BackBuffer& buffer, RubberBand& band);

  // The height base becomes the lowest height, rounded down to whole metres.
  int Fit() override;
  void Draw(PlanCanvas& canvas) const override;
  [[nodiscard]] std::span<Overlay* const> Overlays() const override { return overlays_; }
  [[nodiscard]] GroundPoint GroundUnder(ScreenPoint at) const override;

  // The sides of the rectangle run along the projected axes.
  [[nodiscard]] std::array<ScreenPoint, 3> BandCorners(ScreenPoint first,
                                                       ScreenPoint opposite) const override;
  [[nodiscard]] bool IsPickable() const override { return false; }
  void MarkDirty() override;
  bool TakeDirty() override;

  // Left and right rotate the view, up and down shift the height base.
  void PressArrow(WPARAM key) override;

 private:
  [[nodiscard]] SideProjection Projection() const;

  CPnt3List& points_;
  const BackBuffer& buffer_;
  double height_base_ = 0.0;  // metres
  std::array<Overlay*, 1> overlays_;
};

}  // namespace tavix
