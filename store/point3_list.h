// The 3-D points of one instance.
#pragma once

#include <cstdint>

#include "store/name_pool.h"
#include "store/record_list.h"
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

// Largest and smallest coordinates and heights in metres; zeros for a set without points.
struct GroundExtent3 {
  GroundExtent plan;
  double max_z = 0.0;
  double min_z = 0.0;
};

// Built like the 2-D store (CPntList) and independent of it, equal keys included. Operations return
// 0 for success, -1 when nothing was found, -2 without a current point.
class CPnt3List {
 public:
  explicit CPnt3List(int instance) : instance_(instance) {}

  // No work; every store has the same life calls.
  int Open() { return 0; }
  int Close() { return 0; }

  int Add(const Point3& point);

  // Makes the first point with this key current, always from the head; without one there is no
  // current point.
  int Find(std::int32_t key) { return records_.FindFirst(key); }

  // Marks the store changed, also when the key is unknown.
  int Remove(std::int32_t key);

  int GetCur(Point3* point) const;
  int GetCurCrd(GroundPoint* at, double* z) const;
  int GetCurXYHan(GroundPoint* at, std::int16_t* legend) const;
  int First() { return records_.First(); }
  int Next() { return records_.Next(); }

  int SetCurNoNam(std::int32_t number, NameView name);  // does not mark the store changed
  int SetCurHan(std::int16_t legend);
  int SetCur(std::int32_t number, NameView name, GroundPoint at, double z, std::int16_t legend);

  int Clear();

  // 0, or -3 and zeros for an empty store.
  int GetExtent(GroundExtent3* extent) const;

  // The refit flag: set by every change but that of number and name.
  [[nodiscard]] bool Changed() const { return changed_; }
  void SetChanged(bool changed) { changed_ = changed; }

  [[nodiscard]] int Instance() const { return instance_; }

  // Calls `visit(const Point3&)` for each point in list order; leaves the current point alone.
  template <class Visit>
  void ForEach(Visit visit) const {
    records_.ForEach([&](const Pnt3Rec& record) { visit(View(record)); });
  }

 private:
  struct Pnt3Rec {
    double x;
    double y;
    double z;
    std::int32_t key;
    std::int32_t number;
    PooledName name;
    std::int16_t legend;
    bool removed;
  };

  [[nodiscard]] Point3 View(const Pnt3Rec& record) const;
  void RewriteNames();

  RecordList<Pnt3Rec> records_;
  NamePool names_;
  bool changed_ = false;
  int instance_;
};

}  // namespace tavix
