// Lengths and areas on the ground, in metres and square metres.
#pragma once

#include <span>

#include "host/survey/ground_position.h"

namespace fieldhost {

// Along the corners in their order; 0 for fewer than two.
[[nodiscard]] double PathLength(std::span<const GroundPosition> corners);

// The same and back to the first corner.
[[nodiscard]] double Perimeter(std::span<const GroundPosition> corners);

// Of the closed boundary, whichever way round it runs; 0 for fewer than three corners. Means
// nothing for a boundary that crosses itself.
[[nodiscard]] double EnclosedArea(std::span<const GroundPosition> corners);

}  // namespace fieldhost
