// The 3-D points of one instance.
#pragma once

#include <cstdint>

#include "store/keyed_points.h"
#include "view/coordinates.h"
#include "view/extent.h"

namespace tavix {

// A point with a height as callers see it. The name is valid until the store changes.
struct Point3 {
  std::int32_t key = 0;
  std::int32_t number = 0;
  NameView name;
  GroundPoint at;  // metres
  double z = 0.0;  // height, metres
  std::int16_t legend = 0;
};

// A point with a height as the store keeps it.
struct Pnt3Rec {
  GroundPoint at;
  double z;
  std::int32_t key;
  std::int32_t number;
  PooledName name;
  std::int16_t legend;
  bool removed;
};

// Largest and smallest coordinates and heights in metres; zeros for a set without points.
struct GroundExtent3 {
  GroundExtent plan;
  double max_z = 0.0;
  double min_z = 0.0;
};

// The store of the side view, independent of that of the plan, equal keys included; see KeyedPoints
// for the operations the two share.
class CPnt3List : public KeyedPoints<CPnt3List, Pnt3Rec, Point3> {
 public:
  int Add(const Point3& point);

  // Makes the first point with this key current, always from the head; without one there is no
  // current point.
  int Find(std::int32_t key) { return Records().FindFirst(key); }

  int GetCurCrd(GroundPoint* at, double* z) const;
  int SetCur(std::int32_t number, NameView name, GroundPoint at, double z, std::int16_t legend);

  // 0, or -3 and zeros for an empty store.
  int GetExtent(GroundExtent3* extent) const;

 private:
  friend class KeyedPoints<CPnt3List, Pnt3Rec, Point3>;

  [[nodiscard]] Point3 View(const Pnt3Rec& record) const;
};

}  // namespace tavix
