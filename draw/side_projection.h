// The oblique projection of the 3-D side view.
#pragma once

#include "view/coordinates.h"
#include "view/truncate.h"

namespace tavix {

// Lays the plan's picture flat on a ground plane seen from the side: a buffer pixel becomes a pixel
// of the side view, and back. Both ways truncate toward zero, so the way back is true to a few
// pixels.
class SideProjection {
 public:
  explicit SideProjection(int buffer_height) : height_(buffer_height) {}

  [[nodiscard]] ScreenPoint Project(ScreenPoint plan) const {
    const double a = (height_ - static_cast<double>(plan.y)) * kC2;
    const double b = plan.x * kC1;
    return {TruncateToInt((a + b) * kKx), TruncateToInt(height_ - ((a - b) * kKy + height_ * 0.5))};
  }

  [[nodiscard]] ScreenPoint Unproject(ScreenPoint side) const {
    const double y2 = side.y - height_ * 0.5;
    const double d = 2 * kC1 * kC2 * kKx * kKy;
    const int x = TruncateToInt((kC2 * kKx * y2 + side.x * kKy * kC2) / d);
    const int up = TruncateToInt((side.x * kKy * kC1 - kC1 * kKx * y2) / d);
    return {x, height_ - up};
  }

  [[nodiscard]] int Height() const { return height_; }

 private:
  static constexpr double kC1 = 0.9;
  static constexpr double kC2 = 0.7;
  static constexpr double kKx = 0.8660254037844387;  // cos 30 degrees
  static constexpr double kKy = 0.5;                 // sin 30 degrees

  int height_;
};

}  // namespace tavix
