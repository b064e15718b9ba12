// The mode in which the user marks the rectangle to zoom to.
#pragma once

#include <optional>

#include "view/coordinates.h"
#include "window/modes/stylus.h"

namespace tavix {

// Two opposite corners on the ground.
struct GroundCorners {
  GroundPoint first;
  GroundPoint second;
};

// A drag marks the rectangle at once; a tap marks one corner and the next tap or drag finishes.
class BandZoom {
 public:
  [[nodiscard]] bool IsOn() const { return on_; }
  void TurnOn() { on_ = true; }
  void TurnOff() {
    on_ = false;
    first_corner_.reset();
  }

  // Takes a gesture whose ends lie at `down` and `up` on the ground. The rectangle when it is
  // complete, or none while a second corner is awaited.
  std::optional<GroundCorners> Take(const StylusGesture& gesture, GroundPoint down,
                                    GroundPoint up) {
    if (!first_corner_) {
      if (gesture.IsTap()) {
        first_corner_ = up;
        return std::nullopt;
      }
      first_corner_ = down;
    }
    const GroundCorners corners{*first_corner_, up};
    first_corner_.reset();
    return corners;
  }

 private:
  bool on_ = false;
  std::optional<GroundPoint> first_corner_;
};

}  // namespace tavix
