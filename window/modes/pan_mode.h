// The mode in which the stylus moves the map.
#pragma once

#include "window/modes/stylus_mode.h"

namespace tavix {

class ButtonColumn;
class CViewState;
class Navigation;
class PlotDisplay;

// A tap centres the view on it; in a drag the map follows the stylus. Stays on.
class PanMode : public StylusMode {
 public:
  PanMode(PlotDisplay& display, Navigation& navigation, CViewState& view, ButtonColumn& buttons)
      : display_(display), navigation_(navigation), view_(view), buttons_(buttons) {}

  void Enter() override;
  void Leave() override;
  Progress Release(const StylusGesture& gesture) override;

 private:
  PlotDisplay& display_;
  Navigation& navigation_;
  CViewState& view_;
  ButtonColumn& buttons_;
};

}  // namespace tavix
