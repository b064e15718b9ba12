// Whether a boundary crosses itself, so that it has no area to speak of.
#pragma once

#include <span>

#include "host/survey/ground_position.h"

namespace fieldhost {

// True when two sides of the closed boundary cut through one another. Sides that only touch do not:
// a boundary may run back to a corner that it had before.
[[nodiscard]] bool CrossesItself(std::span<const GroundPosition> corners);

}  // namespace fieldhost
