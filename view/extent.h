// The ground box that holds a set of points.
#pragma once

#include "view/coordinates.h"
#include "view/view_state.h"

namespace tavix {

// Largest and smallest coordinates in metres; zeros for a set without points.
struct GroundExtent {
  GroundPoint max;
  GroundPoint min;

  [[nodiscard]] GroundSize Size() const { return {max.y - min.y, max.x - min.x}; }
  [[nodiscard]] GroundPoint Centre() const {
    return {(max.x + min.x) * 0.5, (max.y + min.y) * 0.5};
  }
};

// Collects an extent point by point.
class ExtentBuilder {
 public:
  void Include(GroundPoint point) {
    if (!any_) {
      extent_ = {point, point};
      any_ = true;
      return;
    }
    Widen(point.x, extent_.max.x, extent_.min.x);
    Widen(point.y, extent_.max.y, extent_.min.y);
  }

  void Include(const GroundExtent& extent) {
    Include(extent.max);
    Include(extent.min);
  }

  [[nodiscard]] bool IsEmpty() const { return !any_; }
  [[nodiscard]] const GroundExtent& Extent() const { return extent_; }

 private:
  static void Widen(double value, double& max, double& min) {
    if (max < value) {
      max = value;
    } else if (value < min) {
      min = value;
    }
  }

  GroundExtent extent_;
  bool any_ = false;
};

}  // namespace tavix
