#include "window/modes/plot_modes.h"

#include <utility>

namespace tavix {

StylusMode& PlotModes::On() {
  if (chosen_) return *chosen_;
  if (capture_.IsOn()) return capture_;
  return pick_;
}

void PlotModes::Press(ScreenPoint at) {
  stylus_.Down(at);
  On().Press(at);
}

void PlotModes::Move(ScreenPoint at) {
  if (stylus_.IsDown()) On().Move(at);
}

void PlotModes::Release(const StylusGesture& gesture) {
  if (On().Release(gesture) == StylusMode::Progress::kDone) LeaveChosen();
}

void PlotModes::CancelGesture() {
  if (!stylus_.IsDown()) return;
  stylus_.Cancel();
  Cancel();
}

void PlotModes::Toggle(StylusMode& mode) {
  const bool chosen = chosen_ == &mode;
  LeaveChosen();
  if (chosen) return;
  chosen_ = &mode;
  mode.Enter();
}

void PlotModes::LeaveChosen() {
  if (StylusMode* const left = std::exchange(chosen_, nullptr)) left->Leave();
}

}  // namespace tavix
