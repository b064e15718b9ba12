// The ground box that holds a set of points.
#pragma once

#include "view/coordinates.h"

namespace tavix {

// Largest and smallest coordinates in metres; zeros for a set without points.
struct GroundExtent {
  GroundPoint max;
  GroundPoint min;

  [[nodiscard]] GroundSize Size() const { return {max.east - min.east, max.north - min.north}; }
  [[nodiscard]] GroundPoint Centre() const {
    return {(max.north + min.north) * 0.5, (max.east + min.east) * 0.5};
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
    Widen(point.north, extent_.max.north, extent_.min.north);
    Widen(point.east, extent_.max.east, extent_.min.east);
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
