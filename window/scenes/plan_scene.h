// The plan: lines, figures and points as a map, with everything that stands over it.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>

#include "draw/plan_view.h"
#include "window/overlays/map_surround.h"
#include "window/overlays/moved_point.h"
#include "window/overlays/rubber_band.h"
#include "window/overlays/traced_line.h"
#include "window/scenes/scene.h"

namespace tavix {

class ImmediateSurfaces;

class PlanScene : public Scene {
 public:
  // New entities are drawn on `immediate`. `band` is the topmost overlay; it belongs to the window.
  PlanScene(const PlotLinks& links, const OverlaySurfaces& surfaces, ImmediateSurfaces& immediate,
            const RatioSetting& ratio, RubberBand& band);

  int Fit() override;
  void Draw(PlanCanvas& canvas) const override;
  void DrawNew(const Point& point) override;
  void DrawNew(const Line& line) override;
  [[nodiscard]] std::span<Overlay* const> Overlays() const override { return overlays_; }
  [[nodiscard]] GroundPoint GroundUnder(ScreenPoint at) const override;
  [[nodiscard]] std::array<ScreenPoint, 3> BandCorners(ScreenPoint first,
                                                       ScreenPoint opposite) const override;
  [[nodiscard]] bool IsPickable() const override { return true; }
  void MarkDirty() override;
  bool TakeDirty() override;

  // Pans by half the drawing area.
  void PressArrow(WPARAM key) override;

  // From now on draws the figures there are at this moment only, or all of them.
  void LeaveOutNewFigures();
  void ShowAllFigures() { figures_shown_.reset(); }

  // What a drawing pass of the plan reads.
  [[nodiscard]] PlotData Data() const;

  [[nodiscard]] bool DrawsLines() const { return draws_lines_; }
  void SetDrawsLines(bool draws_lines) { draws_lines_ = draws_lines; }

  [[nodiscard]] PaperFrameOverlay& Frame() { return frame_; }
  [[nodiscard]] ScaleBarOverlay& ScaleBar() { return scale_bar_; }
  [[nodiscard]] MovedPoint& Moved() { return moved_point_; }
  [[nodiscard]] TracedLine& Trace() { return traced_line_; }

 private:
  void DrawAtOnce(const std::function<void(PlanCanvas&)>& draw);

  const PlotLinks& links_;
  const OverlaySurfaces& surfaces_;
  ImmediateSurfaces& immediate_;
  bool draws_lines_ = true;
  std::optional<std::int32_t> figures_shown_;  // the first so many; nothing: all
  PaperFrameOverlay frame_;
  NorthArrowOverlay north_arrow_;
  ScaleBarOverlay scale_bar_;
  TracedLine traced_line_;
  MovedPoint moved_point_;
  std::array<Overlay*, 6> overlays_;  // bottom to top
};

}  // namespace tavix
