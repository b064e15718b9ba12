#include "host/plot/side_fit.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace fieldhost {
namespace {

constexpr double kMargin = 20.0;      // pixels, for marks and labels
constexpr double kNoReach = 0.00001;  // metres
constexpr double kHalf = 0.5;

// Ground directions of the turned view, in metres.
class Turn {
 public:
  explicit Turn(int degrees)
      : cosine_(std::cos(degrees * std::numbers::pi / 180)),
        sine_(std::sin(degrees * std::numbers::pi / 180)) {}

  [[nodiscard]] double Right(const HighPoint& point) const {
    return cosine_ * point.east + sine_ * point.north;
  }
  [[nodiscard]] double Up(const HighPoint& point) const {
    return cosine_ * point.north - sine_ * point.east;
  }
  [[nodiscard]] double North(double right, double up) const { return cosine_ * up + sine_ * right; }
  [[nodiscard]] double East(double right, double up) const { return cosine_ * right - sine_ * up; }
  // The side of the upright square around a turned one of side 1.
  [[nodiscard]] double Widening() const { return std::fabs(cosine_) + std::fabs(sine_); }

 private:
  double cosine_;
  double sine_;
};

// How far the points reach from the corner at the view's bottom left, in metres on the ground, or,
// seen from the side, in units of the picture's scale.
struct Reach {
  double right = 0.0;
  double up = 0.0;
  double side_right = 0.0;
  double side_up = 0.0;
  double side_down = 0.0;
};

struct Corner {
  double right = std::numeric_limits<double>::max();
  double up = std::numeric_limits<double>::max();
};

Corner BottomLeft(std::span<const HighPoint> points, const Turn& turn) {
  Corner corner;
  for (const HighPoint& point : points) {
    corner.right = std::min(corner.right, turn.Right(point));
    corner.up = std::min(corner.up, turn.Up(point));
  }
  return corner;
}

Reach ReachOf(std::span<const HighPoint> points, const Turn& turn, const Corner& corner,
              double height_base, const SideProjection& projection) {
  Reach reach;
  for (const HighPoint& point : points) {
    const double right = turn.Right(point) - corner.right;
    const double up = turn.Up(point) - corner.up;
    const double above = projection.rise * (projection.up * up - projection.right * right);
    reach.right = std::max(reach.right, right);
    reach.up = std::max(reach.up, up);
    reach.side_right = std::max(
        reach.side_right, projection.across * (projection.up * up + projection.right * right));
    reach.side_up = std::max(reach.side_up, above + point.height - height_base);
    reach.side_down = std::max(reach.side_down, -above);
  }
  return reach;
}

// The most pixels a metre at which `reach` takes no more than `room`.
double ScaleFor(double reach, double room) {
  return reach < kNoReach ? std::numeric_limits<double>::max() : room / reach;
}

// The corner stands the margin from both edges, so that the points begin at the side view's left.
double ScaleFor(const Reach& reach, const SideWindow& window, const SideProjection& projection) {
  const double corner_across = projection.across * (projection.up + projection.right) * kMargin;
  const double corner_above = projection.rise * (projection.up - projection.right) * kMargin;
  const double middle = window.height * kHalf;
  return std::min({ScaleFor(reach.right, window.width - 2 * kMargin),
                   ScaleFor(reach.up, window.height - 2 * kMargin),
                   ScaleFor(reach.side_right, window.width - kMargin - corner_across),
                   ScaleFor(reach.side_up, middle - kMargin - corner_above),
                   ScaleFor(reach.side_down, middle - kMargin + corner_above)});
}

}  // namespace

std::optional<GroundSquare> FitSideView(std::span<const HighPoint> points, const SideWindow& window,
                                        const SideProjection& projection) {
  const Turn turn(window.degrees);
  const Corner corner = BottomLeft(points, turn);
  const Reach reach = ReachOf(points, turn, corner, window.height_base, projection);
  const double scale = ScaleFor(reach, window, projection);
  if (std::max(reach.right, reach.up) < kNoReach || scale <= 0.0) return std::nullopt;
  const double right = corner.right + (window.width * kHalf - kMargin) / scale;
  const double up = corner.up + (window.height * kHalf - kMargin) / scale;
  const int shorter = std::min(window.width, window.height);
  return GroundSquare{turn.North(right, up), turn.East(right, up),
                      shorter / (scale * turn.Widening())};
}

}  // namespace fieldhost
