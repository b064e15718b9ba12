// The view's operations that show a ground box: the host's zoom and the fit to the data.
#include <array>
#include <cmath>

#include "view/view_state.h"

namespace tavix {
namespace {

constexpr double kNoSize = 0.00001;  // metres; the test is on signed sizes
constexpr double kFitMargin = 20.0;  // pixels left free by a fit, both sides together
constexpr double kPointScale = 1.0;  // pixels per metre for a box without size

// Two times the outermost distance on each axis is kept as |largest| + |smallest|.
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

// The scale at which a turned box fills an area of `width` x `height` pixels less `margin`. Which
// side limits is decided by the full proportions while the scale leaves the margin: the asymmetry
// is meant.
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
  home_centre_ = centre;
  home_scale_ = scale_;
  if (no_view_yet_) {
    prev_scale_ = scale_;
    prev_centre_ = centre;
    no_view_yet_ = false;
  }
  return cut;
}

}  // namespace tavix
