// Ground and screen, as distinct types, so that they are never mixed up silently.
#pragma once

#include <limits>

namespace tavix {

// A position on the ground in metres.
struct GroundPoint {
  double north = 0.0;  // the x of the exported calls
  double east = 0.0;   // their y
};

// The size of a box on the ground in metres: `east` along screen x of a view that is not rotated,
// `north` along its screen y. Negative where a caller swapped the corners.
struct GroundSize {
  double east = 0.0;
  double north = 0.0;
};

// A position on the plot window's client area in pixels: origin top left, y downwards.
struct ScreenPoint {
  int x = 0;
  int y = 0;

  friend bool operator==(const ScreenPoint&, const ScreenPoint&) = default;
};

// A screen position before it is truncated to a pixel.
struct RealScreenPoint {
  double x = 0.0;
  double y = 0.0;
};

// A segment on the screen, from `start` to `end`.
struct ScreenSegment {
  ScreenPoint start;
  ScreenPoint end;
};

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
