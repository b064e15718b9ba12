// The mode in which the user marks the zoom window, the rectangle to zoom to.
#pragma once

#include <optional>

#include "view/coordinates.h"
#include "window/modes/stylus_mode.h"

namespace tavix {

class ButtonColumn;
class Navigation;
class PlotDisplay;

// A drag marks the rectangle at once; a tap marks one corner and the next tap or drag finishes.
// Ends with the zoom. No other button can be pressed meanwhile.
class ZoomWindowMode : public StylusMode {
 public:
  ZoomWindowMode(PlotDisplay& display, Navigation& navigation, ButtonColumn& buttons)
      : display_(display), navigation_(navigation), buttons_(buttons) {}

  void Enter() override;
  void Leave() override;
  void Press(ScreenPoint at) override;
  void Move(ScreenPoint at) override;
  Progress Release(const StylusGesture& gesture) override;
  void Cancel() override;

 private:
  PlotDisplay& display_;
  Navigation& navigation_;
  ButtonColumn& buttons_;
  std::optional<GroundPoint> first_corner_;
};

}  // namespace tavix
