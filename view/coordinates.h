// Ground and screen, as distinct types, so that they are never mixed up silently.
#pragma once

namespace tavix {

// A position on the ground in metres.
struct GroundPoint {
  double north = 0.0;  // the x of the exported calls
  double east = 0.0;   // their y
};

// A box on the ground measured along the screen's axes of an unturned view, in metres: `east` along
// screen x, `north` along screen y. A size may be negative where a caller gave its corners so.
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

}  // namespace tavix
