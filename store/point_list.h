// The 2-D survey points of one instance.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "store/keyed_points.h"
#include "store/point_index.h"
#include "view/coordinates.h"
#include "view/extent.h"
#include "view/ground_area.h"

namespace tavix {

// Whether two positions count as the same when a point is changed: both coordinates differ by less
// than 0.00001 m.
[[nodiscard]] bool IsSamePosition(GroundPoint a, GroundPoint b);

// A point as callers see it. The name is valid until the store changes.
struct Point {
  std::int32_t key = 0;     // chosen by the host; the only way to look a point up
  std::int32_t number = 0;  // shown as a label when above 0
  NameView name;
  GroundPoint at;           // metres
  std::int16_t legend = 0;  // legend number of its mark
};

// A point as the store keeps it.
struct PntRec {
  GroundPoint at;
  std::int32_t key;
  std::int32_t number;
  PooledName name;
  std::int16_t legend;
  bool removed;
};

// The store of the plan; see KeyedPoints for the operations it shares with the 3-D store.
class CPntList : public KeyedPoints<CPntList, PntRec, Point> {
 public:
  int Add(const Point& point);

  // Makes the point with this key current: the nearest one to the current point, where keys repeat.
  int Find(std::int32_t key) { return Records().FindOutward(key); }

  int GetCurCrd(GroundPoint* at) const;
  int SetCurCrd(GroundPoint at);
  int SetCur(std::int32_t number, NameView name, GroundPoint at, std::int16_t legend);

  // Calls `visit(const Point&, std::span<const PntRec> passed_over)` in list order for each point
  // within `area`, and maybe for others; leaves the current point alone. `passed_over` are the
  // records, removed ones too, between the point visited before and this one.
  template <class Visit>
  void ForEachIn(const GroundArea& area, Visit visit) const;

  // The key of the point nearest to `at` among the first ten in list order that lie within the
  // square of half side `tolerance` (metres, borders included); of equals the earlier one. -3 when
  // the store is empty, -1 when no point lies in the square; the key is then 0.
  int FindNearest(double tolerance, GroundPoint at, std::int32_t* key) const;

  // 0, or -3 and zeros for an empty store.
  int GetExtent(GroundExtent* extent) const;

  // The position of the point with this key, leaving the current point alone; false when there is
  // none.
  bool Locate(std::int32_t key, GroundPoint* at) const;

  // ---- Points by their positions in the list, for what is derived from it

  using Position = RecordList<PntRec>::Position;

  // Of the point with this key, or nothing. It stays the same until Removals changes.
  [[nodiscard]] std::optional<Position> PositionOf(std::int32_t key) const {
    return Records().PositionOf(key);
  }
  [[nodiscard]] GroundPoint At(Position position) const {
    return Records().ByPosition()[position].at;
  }
  // All positions are below it; every point that is entered raises it.
  [[nodiscard]] std::size_t PositionEnd() const { return Records().ByPosition().size(); }
  // Changes whenever points are removed.
  [[nodiscard]] std::uint64_t Removals() const { return Records().Removals(); }
  // Changes whenever a point moves on the ground.
  [[nodiscard]] std::uint64_t Moves() const { return moves_; }

 private:
  friend class KeyedPoints<CPntList, PntRec, Point>;

  [[nodiscard]] Point View(const PntRec& record) const;

  std::uint64_t moves_ = 0;
  mutable PointIndex<PntRec> index_;  // a cache: it only shortens searches
};

template <class Visit>
void CPntList::ForEachIn(const GroundArea& area, Visit visit) const {
  const std::span<const PntRec> all = Records().ByPosition();
  std::size_t next = 0;  // records before this one have been visited or passed over
  index_.ForEach(
      Records(), [&](const GroundExtent& box) { return area.Touches(box); },
      [&](std::size_t at) {
        visit(View(all[at]), all.subspan(next, at - next));
        next = at + 1;
      });
}

}  // namespace tavix
