// From a real pixel value to a whole one.
#pragma once

#include <limits>

namespace tavix {

// Truncates toward zero, as every conversion from ground to screen does. A value beyond the 32-bit
// range becomes the range's end, so that a point at the far side of the earth stays far away. NaN
// maps to INT_MIN, which is off screen.
inline int TruncateToInt(double value) {
  constexpr double kLow = std::numeric_limits<int>::min();
  constexpr double kHigh = std::numeric_limits<int>::max();
  if (value >= kHigh) return std::numeric_limits<int>::max();
  if (value > kLow) return static_cast<int>(value);
  return std::numeric_limits<int>::min();
}

}  // namespace tavix
