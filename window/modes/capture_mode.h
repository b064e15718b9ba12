// Coordinate capture: each tap gives the host a ground coordinate.
#pragma once

#include <optional>

#include "window/modes/pick_mode.h"

namespace tavix {

// On between the host's start and end, and gives it the coordinate of the point that was tapped, or
// of the ground where there is none.
class CaptureMode : public TapMode {
 public:
  explicit CaptureMode(const TapTarget& target) : TapMode(target) {}

  // `command` is the command id that reports each capture.
  void Start(int command);
  void End();
  [[nodiscard]] bool IsOn() const { return on_; }

  // The coordinate of the latest tap in the mode, if there was one.
  [[nodiscard]] const std::optional<GroundPoint>& Captured() const { return captured_; }

 protected:
  void Tapped(GroundPoint tapped, std::optional<std::int32_t> key) override;

 private:
  int command_ = 0;
  bool on_ = false;
  std::optional<GroundPoint> captured_;
};

}  // namespace tavix
