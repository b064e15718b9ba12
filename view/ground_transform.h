// From the ground to the screen.
#pragma once

#include "view/coordinates.h"

namespace tavix {

// About a pixel, clockwise for a positive angle, since y runs down.
struct ScreenRotation {
  RealScreenPoint middle;
  double cos = 1.0;
  double sin = 0.0;

  [[nodiscard]] RealScreenPoint Of(RealScreenPoint at) const {
    const double dx = at.x - middle.x;
    const double dy = at.y - middle.y;
    return {dx * cos - dy * sin + middle.x, dy * cos + dx * sin + middle.y};
  }
};

// How a view shows the ground: its centre at a pixel, scaled, and rotated about that pixel. A copy
// keeps at hand what a loop over many points needs.
struct GroundTransform {
  GroundPoint centre;
  double scale = 1.0;    // pixels per metre along screen x
  double v_scale = 1.0;  // along screen y
  ScreenRotation rotation;

  [[nodiscard]] RealScreenPoint ToRealScreen(GroundPoint ground) const {
    return rotation.Of({(ground.east - centre.east) * scale + rotation.middle.x,
                        (centre.north - ground.north) * v_scale + rotation.middle.y});
  }

  // The pixel, truncated toward zero.
  [[nodiscard]] ScreenPoint ToScreen(GroundPoint ground) const {
    const RealScreenPoint screen = ToRealScreen(ground);
    return {TruncateToInt(screen.x), TruncateToInt(screen.y)};
  }
};

}  // namespace tavix
