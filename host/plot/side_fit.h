// The ground that the side view has to show so that every point is seen. The library fits the side
// view as seen from above, and its far right may then lie outside of the window; what is found here
// is smaller and stands further left.
#pragma once

#include <optional>
#include <span>

namespace fieldhost {

struct HighPoint {
  double north = 0.0;  // metres
  double east = 0.0;
  double height = 0.0;
};

// The factors of the side view's projection: see kTavixSideRight and its neighbours in
// <tavix/tavix.h>.
struct SideProjection {
  double right = 0.0;
  double up = 0.0;
  double across = 0.0;
  double rise = 0.0;
};

struct SideWindow {
  int width = 0;  // pixels of the drawing area, without the column of buttons
  int height = 0;
  int degrees = 0;           // that the view is turned by, clockwise
  double height_base = 0.0;  // metres; no point lies below it
};

// A square of ground, its sides north-south and east-west, in metres.
struct GroundSquare {
  double north = 0.0;  // the centre
  double east = 0.0;
  double side = 0.0;
};

// The square to zoom to. Nothing where all points stand in one place or the window has no room.
[[nodiscard]] std::optional<GroundSquare> FitSideView(std::span<const HighPoint> points,
                                                      const SideWindow& window,
                                                      const SideProjection& projection);

}  // namespace fieldhost
