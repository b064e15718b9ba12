// The oblique projection of the 3-D side view.
#pragma once

#include "view/coordinates.h"

namespace tavix {

// Lays the picture of the plan on a ground plane seen from the side: a buffer pixel becomes a pixel
// of the side view, and back. Both ways truncate toward zero, so the way back is true to a few
// pixels.
class SideProjection {
 public:
  explicit SideProjection(int buffer_height) : height_(buffer_height) {}

  [[nodiscard]] ScreenPoint Project(ScreenPoint plan) const {
    const double a = (height_ - static_cast<double>(plan.y)) * kPlanY;
    const double b = plan.x * kPlanX;
    return {TruncateToInt((a + b) * kCos30),
            TruncateToInt(height_ - ((a - b) * kSin30 + height_ * 0.5))};
  }

  [[nodiscard]] ScreenPoint Unproject(ScreenPoint side) const {
    const double below_middle = side.y - height_ * 0.5;
    const double d = 2 * kPlanX * kPlanY * kCos30 * kSin30;
    const int x = TruncateToInt((kPlanY * kCos30 * below_middle + side.x * kSin30 * kPlanY) / d);
    const int up = TruncateToInt((side.x * kSin30 * kPlanX - kPlanX * kCos30 * below_middle) / d);
    return {x, height_ - up};
  }

  [[nodiscard]] int Height() const { return height_; }

 private:
  // How much the axes of the plan are shortened, and the angle of the ground plane.
  static constexpr double kPlanX = 0.9;
  static constexpr double kPlanY = 0.7;
  static constexpr double kCos30 = 0.8660254037844387;
  static constexpr double kSin30 = 0.5;

  int height_;
};

}  // namespace tavix
