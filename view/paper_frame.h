// The outline of a paper sheet over the plot.
#pragma once

#include <array>

#include "view/view_state.h"

namespace tavix {

// A sheet that stays where it is on the screen: zooming changes the ground it covers, and with it
// the scale 1:N at which the sheet would show that ground. It is laid out once, when the sheet is
// set.
//
// Nothing is checked: a sheet of no size has sizes that are not finite.
class PaperFrame {
 public:
  void TurnOff() { on_ = false; }

  // Lays out a sheet that is `height_units` units high, of which `height_per_inch` make an inch,
  // and the same for its width, in the view's drawing area with a margin of 5 pixels.
  void TurnOn(const CViewState& view, int height_per_inch, int height_units, int width_per_inch,
              int width_units);

  [[nodiscard]] bool IsOn() const { return on_; }

  void SetShown(bool shown) { shown_ = shown; }
  [[nodiscard]] bool IsShown() const { return on_ && shown_; }

  // Gives the view the scale 1:n and keeps the frame's origin. True when the scale was cut to its
  // cap. n is 1 or more.
  [[nodiscard]] bool SetScale(CViewState& view, int n);

  // N of 1:N, truncated.
  [[nodiscard]] int Scale() const;

  // Moves the view so that the frame's bottom left corner lies on `origin`.
  void SetOrigin(CViewState& view, GroundPoint origin);
  [[nodiscard]] GroundPoint Origin() const { return origin_; }

  // To be called when the view has changed: the origin follows, and a stale scale is computed.
  void Follow(const CViewState& view);

  // The scale no longer fits the view. Compatibility: not called for the zooms of the host.
  void MarkScaleStale() { scale_ = kStale; }

  // Sheet length per ground length, 1/N.
  [[nodiscard]] double ScaleFactor() const { return scale_; }
  [[nodiscard]] double SheetWidth() const { return sheet_width_; }  // metres

  // Size of the outline in pixels, and its five points: top left, top right, bottom right, bottom
  // left, top left.
  [[nodiscard]] int Width() const { return outline_[1].x - outline_[0].x; }
  [[nodiscard]] int Height() const { return outline_[2].y - outline_[1].y; }
  [[nodiscard]] const std::array<ScreenPoint, 5>& Outline() const { return outline_; }

 private:
  static constexpr double kStale = -1.0;

  void Layout(const CViewState& view);
  [[nodiscard]] double ScaleIn(const CViewState& view) const;
  [[nodiscard]] ScreenPoint TopLeft() const { return outline_[0]; }
  [[nodiscard]] ScreenPoint TopRight() const { return outline_[1]; }
  [[nodiscard]] ScreenPoint BottomLeft() const { return outline_[3]; }

  bool on_ = false;
  bool shown_ = false;
  double sheet_height_ = 0.0;  // metres
  double sheet_width_ = 0.0;
  double scale_ = kStale;
  std::array<ScreenPoint, 5> outline_{};
  GroundPoint origin_;
};

}  // namespace tavix
