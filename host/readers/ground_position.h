// Positions of survey data.
#pragma once

namespace fieldhost {

// A place in plan, in metres.
struct GroundPosition {
  double north = 0.0;
  double east = 0.0;

  bool operator==(const GroundPosition&) const = default;
};

}  // namespace fieldhost
