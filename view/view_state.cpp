#include "view/view_state.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

namespace tavix {
namespace {

constexpr double kRadiansPerDegree = 0.017453292519943295;
constexpr double kSameView = 0.00001;  // pixels per metre, and metres

}  // namespace

void CViewState::SetScreenSize(int width, int height) {
  width_ = width;
  height_ = height;
  half_width_ = width / 2;
  half_height_ = height / 2;
  screen_quad_ = {{{0, 0}, {width, 0}, {width, height}, {0, height}}};
}

void CViewState::GetScreenSize(int* width, int* height) const {
  *width = TruncateToInt(width_);
  *height = TruncateToInt(height_);
}

void CViewState::SetRatio(double ratio) {
  ratio_ = ratio;
  v_scale_ = scale_ * ratio;
}

void CViewState::SetCentre(GroundPoint centre) {
  prev_centre_ = centre_;
  centre_ = centre;
}

int CViewState::SetAngle(int degrees) {
  if (degrees < 0 || degrees > 359) return -1;
  angle_ = degrees;
  const auto set = [this](double cos_a, double sin_a, double cos_inv, double sin_inv) {
    cos_a_ = cos_a;
    sin_a_ = sin_a;
    cos_inv_ = cos_inv;
    sin_inv_ = sin_inv;
  };
  // The right angles are set and not computed: no rounding noise in the common views.
  switch (degrees) {
    case 0:
      set(1.0, 0.0, 1.0, 0.0);
      break;
    case 90:
      set(0.0, 1.0, 0.0, -1.0);
      break;
    case 180:
      set(-1.0, 0.0, -1.0, 0.0);
      break;
    case 270:
      set(0.0, -1.0, 0.0, 1.0);
      break;
    default: {
      const double radians = degrees * kRadiansPerDegree;
      set(std::cos(radians), std::sin(radians), std::cos(-radians), std::sin(-radians));
    }
  }
  return 0;
}

int CViewState::RotateBy(int degrees) {
  std::int64_t angle = std::int64_t{angle_} + degrees;
  if (angle >= 360) {
    angle -= 360;
  } else if (angle < 0) {
    angle += 360;
  }
  return angle < 0 || angle > 359 ? -1 : SetAngle(static_cast<int>(angle));
}

bool CViewState::SetScaleCapped(double scale) {
  const bool cut = kScaleCap < scale;
  scale_ = cut ? kScaleCap : scale;
  v_scale_ = scale_ * ratio_;
  return cut;
}

bool CViewState::ZoomIn(double factor) {
  prev_scale_ = scale_;
  return SetScaleCapped(scale_ * factor);
}

void CViewState::ZoomOut(double factor) {
  prev_scale_ = scale_;
  scale_ = scale_ / factor;
  v_scale_ = scale_ * ratio_;
}

bool CViewState::SetFitScale(int pixels, double length, double factor) {
  if (!no_view_yet_) prev_scale_ = scale_;
  const bool cut = SetScaleCapped((pixels / length) * factor);
  extents_scale_ = scale_;
  if (no_view_yet_) {
    prev_scale_ = scale_;
    no_view_yet_ = false;
  }
  return cut;
}

void CViewState::ToggleExtents() {
  const bool at_extents = std::fabs(scale_ - extents_scale_) < kSameView &&
                          std::fabs(centre_.north - extents_centre_.north) < kSameView &&
                          std::fabs(centre_.east - extents_centre_.east) < kSameView;
  if (at_extents) {
    scale_ = prev_scale_;
    centre_ = prev_centre_;
  } else {
    prev_centre_ = centre_;
    prev_scale_ = scale_;
    scale_ = extents_scale_;
    centre_ = extents_centre_;
  }
  v_scale_ = scale_ * ratio_;
}

GroundPoint CViewState::ScreenToGround(ScreenPoint screen) const {
  const RealScreenPoint flat =
      ScreenRotation{Middle(), cos_inv_, sin_inv_}.Of({1.0 * screen.x, 1.0 * screen.y});
  return {(half_height_ - flat.y) / v_scale_ + centre_.north,
          (flat.x - half_width_) / scale_ + centre_.east};
}

int CViewState::LengthToPixels(double length) const { return TruncateToInt(scale_ * length); }

double CViewState::PixelsToLength(int pixels) const { return pixels / scale_; }

int CViewState::LengthToPixelsAxis(bool vertical, double length) const {
  return vertical ? TruncateToInt((ratio_ * scale_) * length) : LengthToPixels(length);
}

double CViewState::PixelsToLengthAxis(bool vertical, int pixels) const {
  return vertical ? pixels / v_scale_ : PixelsToLength(pixels);
}

bool CViewState::IsPointInView(GroundPoint point) const {
  ScreenPoint ignored;
  return CircleOnScreen(point, 0.0, ignored);
}

bool CViewState::IsCircleInView(GroundPoint centre, double radius) const {
  constexpr double kNoRadius = 0.00001;
  if (radius < kNoRadius) return IsPointInView(centre);
  const std::array<GroundPoint, 4> offsets{{{radius, 0}, {0, radius}, {-radius, 0}, {0, -radius}}};
  return std::all_of(offsets.begin(), offsets.end(), [&](GroundPoint offset) {
    return IsPointInView({centre.north + (offset.north * cos_a_ - offset.east * sin_a_),
                          centre.east + (offset.east * cos_a_ + offset.north * sin_a_)});
  });
}

bool CViewState::CircleOnScreen(GroundPoint centre, double radius, ScreenPoint& screen) const {
  const ScreenPoint at = GroundToScreen(centre);
  const std::int64_t r = LengthToPixels(radius);
  if (at.x + r < 0 || at.y + r < 0 || TruncateToInt(width_) < at.x - r ||
      TruncateToInt(height_) < at.y - r) {
    return false;
  }
  screen = at;
  return true;
}

// The upright box around the turned client area, grown by `pixels` and by two more for truncation
// and rounding.
GroundArea CViewState::GroundAround(int pixels) const {
  constexpr double kAnywhere = std::numeric_limits<double>::infinity();
  if (!std::isfinite(PixelsToLength(pixels))) return {centre_, kAnywhere, kAnywhere};
  const int margin = pixels + 2;
  const double half_x = std::max<double>(half_width_, width_ - half_width_) + margin;
  const double half_y = std::max<double>(half_height_, height_ - half_height_) + margin;
  const double across = std::fabs(cos_a_) * half_x + std::fabs(sin_a_) * half_y;
  const double down = std::fabs(sin_a_) * half_x + std::fabs(cos_a_) * half_y;
  return {centre_, down / std::fabs(v_scale_), across / std::fabs(scale_)};
}

SegmentSieve CViewState::OutOfView() const {
  constexpr double kTruePixels = 1 << 29;  // a quarter of their range: no turn leaves it
  return {GroundAround(0),
          {centre_, kTruePixels / std::fabs(v_scale_), kTruePixels / std::fabs(scale_)}};
}

bool CViewState::ClipAcrossBorder(ScreenSegment& segment) const {
  const int width = TruncateToInt(width_);
  const int height = TruncateToInt(height_);
  if (segment.start.y < 0 && segment.end.y < 0) return false;
  if (segment.start.y > height && segment.end.y > height) return false;
  if (segment.start.x < 0 && segment.end.x < 0) return false;
  if (segment.start.x > width && segment.end.x > width) return false;
  return ClipToQuad(screen_quad_, segment);
}

bool CViewState::ClipGroundSegmentInPlace(GroundPoint& start, GroundPoint& end,
                                          ScreenSegment& clipped) const {
  if (!ClipGroundSegment(start, end, clipped)) return false;
  start = ScreenToGround(clipped.start);
  end = ScreenToGround(clipped.end);
  return true;
}

}  // namespace tavix
