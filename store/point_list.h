// The 2-D survey points of one instance.
#pragma once

#include <cstdint>

#include "store/name_pool.h"
#include "store/record_list.h"
#include "view/coordinates.h"
#include "view/extent.h"

namespace tavix {

// A point as callers see it. The name is valid until the store changes.
struct Point {
  std::int32_t key = 0;     // chosen by the host; the only way to look a point up
  std::int32_t number = 0;  // shown as a label when above 0
  NameView name;
  GroundPoint at;           // metres
  std::int16_t legend = 0;  // legend number of its mark
};

// Points in the order they were entered, which is the order they are drawn in. The store accepts a
// key twice; the exported calls look a key up first and never enter one twice.
//
// Operations return 0 for success, -1 when nothing was found, -2 without a current point.
class CPntList {
 public:
  explicit CPntList(int instance) : instance_(instance) {}

  // No work; every store has the same life calls.
  int Open() { return 0; }
  int Close() { return 0; }

  int Add(const Point& point);

  // Makes the point with this key current: the nearest one to the current point, where keys repeat.
  int Find(std::int32_t key) { return records_.FindOutward(key); }

  // Marks the store changed, also when the key is unknown.
  int Remove(std::int32_t key);

  int GetCur(Point* point) const;
  int GetCurCrd(GroundPoint* at) const;
  int First() { return records_.First(); }
  int Next() { return records_.Next(); }

  int SetCurNoNam(std::int32_t number, NameView name);  // does not mark the store changed
  int SetCurCrd(GroundPoint at);
  int SetCurHan(std::int16_t legend);
  int SetCur(std::int32_t number, NameView name, GroundPoint at, std::int16_t legend);

  int Clear();

  // The key of the point nearest to `at` among the first ten in list order that lie within the
  // square of half side `tolerance` (metres, borders included); of equals the earlier one. -3 when
  // the store is empty, -1 when no point lies in the square; the key is then 0.
  int FindNearest(double tolerance, GroundPoint at, std::int32_t* key) const;

  // 0, or -3 and zeros for an empty store.
  int GetExtent(GroundExtent* extent) const;

  // The refit flag: set by every change but that of number and name.
  [[nodiscard]] bool Changed() const { return changed_; }
  void SetChanged(bool changed) { changed_ = changed; }

  [[nodiscard]] int Instance() const { return instance_; }

  // ---- Reading without moving the current point

  [[nodiscard]] std::size_t Count() const { return records_.Count(); }

  // Calls `visit(const Point&)` for each point in list order.
  template <class Visit>
  void ForEach(Visit visit) const {
    records_.ForEach([&](const PntRec& record) { visit(View(record)); });
  }

  // The position of the point with this key; false when there is none.
  bool Locate(std::int32_t key, GroundPoint* at) const;

 private:
  struct PntRec {
    double x;
    double y;
    std::int32_t key;
    std::int32_t number;
    PooledName name;
    std::int16_t legend;
    bool removed;
  };

  [[nodiscard]] Point View(const PntRec& record) const;
  void SetName(PntRec& record, NameView name);
  void RewriteNames();

  RecordList<PntRec> records_;
  NamePool names_;
  bool changed_ = false;
  int instance_;
};

}  // namespace tavix
