// How the view shows a ground box: zoom window (the host's zoom) and zoom extents (the fit).
#include <array>
#include <cmath>

#include "view/view_state.h"

namespace tavix {
namespace {

constexpr double kNoSize = 0.00001;  // metres; the test is on signed sizes
constexpr double kFitMargin = 20.0;  // pixels left free by a fit, both sides together
constexpr double kPointScale = 1.0;  // pixels per metre for a box without size

// The range of one coordinate of a box around the origin.
struct Range {
  double low = 0.0;
  double high = 0.0;

  void Include(double value) {
    if (value < low) {
      low = value;
    } else if (value > high) {
      high = value;
    }
  }
  [[nodiscard]] double Size() const { return std::fabs(high) + std::fabs(low); }
};

bool HasNoSize(double size) { return size < kNoSize; }

// The scale at which a rotated box fills an area of `width` x `height` pixels less `margin`.
// Compatibility: the full proportions decide which side limits, and only then the margin is left.
double ScaleToFill(GroundSize box, double width, double height, double margin) {
  const bool width_limits = HasNoSize(box.north) ||
                            (!HasNoSize(box.east) && width / height < box.east * (1.0 / box.north));
  if (HasNoSize(box.east)) return (height - margin) / box.north;
  return width_limits ? (width - margin) / box.east : (height - margin) * (1.0 / box.north);
}

}  // namespace

GroundSize CViewState::RotatedExtent(GroundSize size) const {
  const double a = size.east / 2;
  const double b = size.north / 2;
  const std::array<std::array<double, 2>, 4> corners{{{a, b}, {a, -b}, {-a, -b}, {-a, b}}};
  Range x;
  Range y;
  for (const auto& [corner_x, corner_y] : corners) {
    x.Include(cos_a_ * corner_x - sin_a_ * corner_y);
    y.Include(sin_a_ * corner_x + cos_a_ * corner_y);
  }
  return {x.Size(), y.Size()};
}

double CViewState::ScaleToShow(GroundSize size, double width, double height, double margin) const {
  // The vertical size counts in horizontal pixels per metre.
  const GroundSize box{size.east, ratio_ * size.north};
  if (HasNoSize(box.east) && HasNoSize(box.north)) return kPointScale;
  return ScaleToFill(RotatedExtent(box), width, height, margin);
}

bool CViewState::ZoomToArea(GroundSize size, GroundPoint centre) {
  prev_scale_ = scale_;
  prev_centre_ = centre_;
  centre_ = centre;
  return SetScaleCapped(ScaleToShow(size, width_, height_, 0.0));
}

bool CViewState::FitToArea(GroundSize size, GroundPoint centre) {
  return FitToSize(width_, height_, size, centre);
}

bool CViewState::FitToRect(int width, int height, GroundSize size, GroundPoint centre) {
  return FitToSize(width, height, size, centre);
}

bool CViewState::FitToSize(double width, double height, GroundSize size, GroundPoint centre) {
  if (!no_view_yet_) {
    prev_scale_ = scale_;
    prev_centre_ = centre_;
  }
  const bool cut = SetScaleCapped(ScaleToShow(size, width, height, kFitMargin));
  centre_ = centre;
  extents_centre_ = centre;
  extents_scale_ = scale_;
  if (no_view_yet_) {
    prev_scale_ = scale_;
    prev_centre_ = centre;
    no_view_yet_ = false;
  }
  return cut;
}

}  // namespace tavix
