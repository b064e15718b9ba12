// Many equal steps at once, with the very result of making them one by one.
#pragma once

#include <cstdint>
#include <span>

#include "view/coordinates.h"

namespace tavix {

// A step on the ground in metres.
struct GroundStep {
  double dx = 0.0;
  double dy = 0.0;
};

inline GroundPoint operator+(GroundPoint at, GroundStep step) {
  return {at.north + step.dx, at.east + step.dy};
}

// The position after going `rounds` times through `steps` from `at`, each step added in floating
// point in turn. The result equals the plain loop's to the last bit, but it takes a time that
// depends on the number of powers of two passed and hardly on `rounds`.
[[nodiscard]] GroundPoint StepExactly(GroundPoint at, std::span<const GroundStep> steps,
                                      std::int64_t rounds);

}  // namespace tavix
