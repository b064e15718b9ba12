// The mode in which each tap gives the host a ground coordinate.
#pragma once

#include <optional>

#include "view/coordinates.h"

namespace tavix {

class CoordinateCapture {
 public:
  // `command` is the command id that tells the host of each capture.
  void Start(int command) {
    command_ = command;
    on_ = true;
    captured_.reset();
  }
  void End() {
    on_ = false;
    captured_.reset();
  }

  [[nodiscard]] bool IsOn() const { return on_; }
  [[nodiscard]] int Command() const { return command_; }

  void Capture(GroundPoint at) { captured_ = at; }
  void Forget() { captured_.reset(); }

  // The coordinate of the latest tap in the mode, if there was one.
  [[nodiscard]] const std::optional<GroundPoint>& Captured() const { return captured_; }

 private:
  int command_ = 0;
  bool on_ = false;
  std::optional<GroundPoint> captured_;
};

}  // namespace tavix
