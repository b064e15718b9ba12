// The modes of a plot window's stylus, and which of them is on.
#pragma once

#include <optional>

#include "window/modes/capture_mode.h"
#include "window/modes/pan_mode.h"
#include "window/modes/pick_mode.h"
#include "window/modes/stylus.h"
#include "window/modes/zoom_window_mode.h"

namespace tavix {

// The user chooses pan or the zoom window, one at a time, by their buttons. While none is chosen
// taps capture coordinates where the host has started that, and pick points otherwise.
class PlotModes {
 public:
  PlotModes(const TapTarget& target, UINT notify_id, Navigation& navigation, ButtonColumn& buttons)
      : pick_(target, notify_id),
        capture_(target),
        pan_(target.display, navigation, target.view, buttons),
        zoom_window_(target.display, navigation, buttons) {}

  void Press(ScreenPoint at);
  void Move(ScreenPoint at);

  // The gesture that ends at `at`, if one began; it is to be handed on to Release.
  std::optional<StylusGesture> Lift(ScreenPoint at) { return stylus_.Up(at); }
  void Release(const StylusGesture& gesture);

  // Forgets a gesture whose release will not be seen.
  void CancelGesture();

  // Takes off the screen what is shown of a gesture.
  void Cancel() { On().Cancel(); }

  // Choose a mode, or leave it when it is chosen.
  void TogglePan() { Toggle(pan_); }
  void ToggleZoomWindow() { Toggle(zoom_window_); }
  [[nodiscard]] bool IsZoomWindowOn() const { return chosen_ == &zoom_window_; }

  [[nodiscard]] CaptureMode& Capture() { return capture_; }

  // The client pixel of the last release.
  [[nodiscard]] ScreenPoint LastTap() const { return stylus_.LastUp(); }

 private:
  // The mode that is on.
  [[nodiscard]] StylusMode& On();
  void Toggle(StylusMode& mode);
  void LeaveChosen();

  Stylus stylus_;
  PickMode pick_;
  CaptureMode capture_;
  PanMode pan_;
  ZoomWindowMode zoom_window_;
  StylusMode* chosen_ = nullptr;  // pan, zoom window or none
};

}  // namespace tavix
