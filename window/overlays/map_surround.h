// The map surround: paper frame, north arrow and scale bar, which paints alone draw over the plan.
#pragma once

#include <afxwin.h>

#include <optional>

#include "view/paper_frame.h"
#include "window/overlays/overlay.h"
#include "window/settings/plot_settings.h"

namespace tavix {

// The paper frame of a plot. Its scale and origin move the view; while it is off they are refused.
class PaperFrameOverlay : public Overlay {
 public:
  explicit PaperFrameOverlay(CViewState& view) : view_(view) {}

  // See PaperFrame::TurnOn.
  void TurnOn(int height_per_inch, int height_units, int width_per_inch, int width_units) {
    frame_.TurnOn(view_, height_per_inch, height_units, width_per_inch, width_units);
  }
  void TurnOff() { frame_.TurnOff(); }
  void SetShown(bool shown) { frame_.SetShown(shown); }

  // Gives the view the scale 1:n and keeps the origin. False while the frame is off, or for an n
  // below 1.
  bool SetScale(int n);

  // Moves the view so that the frame's bottom left corner lies on `origin`. False while it is off.
  bool SetOrigin(GroundPoint origin);

  // N of 1:N, and the origin; none while the frame is off.
  [[nodiscard]] std::optional<int> Scale() const;
  [[nodiscard]] std::optional<GroundPoint> Origin() const;

  // To be called when the view has changed.
  void FollowView() { frame_.Follow(view_); }

  // The scale no longer fits the view: it is worked out again when the frame next follows it.
  void MarkScaleDirty() { frame_.MarkScaleStale(); }

  [[nodiscard]] const PaperFrame& Sheet() const { return frame_; }

  void PutBack(CDC& paint) override;

 private:
  CViewState& view_;
  PaperFrame frame_;
};

// Shown while the view is turned.
class NorthArrowOverlay : public Overlay {
 public:
  explicit NorthArrowOverlay(const CViewState& view) : view_(view) {}

  void PutBack(CDC& paint) override;

 private:
  const CViewState& view_;
};

// A bracket with its length on the ground as text; nothing where the view is too close for one.
class ScaleBarOverlay : public Overlay {
 public:
  // Of the vertical axis once `ratio` has been given.
  ScaleBarOverlay(const CViewState& view, const RatioSetting& ratio);

  void SetShown(bool shown) { shown_ = shown; }

  void PutBack(CDC& paint) override;

 private:
  const CViewState& view_;
  const RatioSetting& ratio_;
  CFont font_;
  bool shown_ = false;
};

}  // namespace tavix
