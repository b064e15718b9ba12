// Which ground the side view has to show for every point to be seen.
//
// The library fits the side view as it fits the plan: into a window seen from above. It then lays
// that window flat, seen from the side, and in a window that is not very wide the far right of it
// lies outside. What is found here is smaller, and stands further left.
#pragma once

#include <optional>
#include <span>

namespace fieldhost {

struct HighPoint {
  double north = 0.0;  // metres
  double east = 0.0;
  double height = 0.0;
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
                                                      const SideWindow& window);

}  // namespace fieldhost
