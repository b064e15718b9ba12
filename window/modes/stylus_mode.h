// What the stylus does on a plot: one mode at a time is on.
#pragma once

#include "window/modes/stylus.h"

namespace tavix {

// A press begins a gesture, moves follow it, a release ends it. A mode can be switched on in the
// middle of one: the gesture then ends in the mode that is on.
class StylusMode {
 public:
  // Whether the mode stays on after a gesture.
  enum class Progress { kGoesOn, kDone };

  StylusMode() = default;
  virtual ~StylusMode() = default;
  StylusMode(const StylusMode&) = delete;
  StylusMode& operator=(const StylusMode&) = delete;

  // The mode goes on or off; its button shows it.
  virtual void Enter() {}
  virtual void Leave() {}

  virtual void Press(ScreenPoint /*at*/) {}
  virtual void Move(ScreenPoint /*at*/) {}
  virtual Progress Release(const StylusGesture& gesture) = 0;

  // Takes off the screen what it shows of a gesture. The gesture may go on: the next move shows it
  // again.
  virtual void Cancel() {}
};

}  // namespace tavix
