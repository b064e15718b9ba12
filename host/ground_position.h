// A place on the ground.
#pragma once

namespace fieldhost {

struct GroundPosition {
  double north = 0.0;  // metres
  double east = 0.0;

  friend bool operator==(const GroundPosition&, const GroundPosition&) = default;
};

}  // namespace fieldhost
