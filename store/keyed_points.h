// What the 2-D and the 3-D point store share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <new>
#include <utility>

#include "store/name_pool.h"
#include "store/record_list.h"

namespace tavix {

// Points in the order of entry, which is the order of drawing, with a current point. `Record` has a
// `number`, a `name` and a `legend` besides the members that RecordList needs; `Point` is what
// callers see of it, its name valid until the store changes; `Store`, the derived class, turns a
// record into a point by View(record).
//
// A store accepts a key twice; the exported calls look a key up first and never enter one twice.
// Operations return 0 for success, -1 when nothing was found, -2 without a current point. One for
// which there is no memory throws std::bad_alloc, and the store is as it was.
template <class Store, class Record, class Point>
class KeyedPoints {
 public:
  // Marks the store changed, also when the key is unknown.
  int Remove(std::int32_t key) {
    changed_ = true;
    if (Self().Find(key) != 0) return -1;
    names_.Drop(records_.Current()->name);
    records_.RemoveCurrent();
    CloseNameGaps();
    return 0;
  }

  int GetCur(Point* point) const {
    const Record* current = records_.Current();
    if (!current) return -2;
    *point = Self().View(*current);
    return 0;
  }

  int First() { return records_.First(); }
  int Next() { return records_.Next(); }

  // Does not mark the store changed.
  int SetCurNoNam(std::int32_t number, NameView name) {
    Record* current = records_.Current();
    if (!current) return -2;
    names_.Replace(current->name, name);
    current->number = number;
    CloseNameGaps();
    return 0;
  }

  int SetCurHan(std::int16_t legend) {
    Record* current = records_.Current();
    if (!current) return -2;
    current->legend = legend;
    changed_ = true;
    return 0;
  }

  int Clear() {
    records_.Clear();
    names_.Clear();
    changed_ = false;
    return 0;
  }

  // Whether the extents may have changed since the last fit: set by every change but that of number
  // and name.
  [[nodiscard]] bool Changed() const { return changed_; }
  void SetChanged(bool changed) { changed_ = changed; }

  [[nodiscard]] std::size_t Count() const { return records_.Count(); }

  // Calls `visit(const Point&)` for each point in list order; leaves the current point alone.
  template <class Visit>
  void ForEach(Visit visit) const {
    records_.ForEach([&](const Record& record) { visit(Self().View(record)); });
  }

 protected:
  KeyedPoints() = default;

  void Append(const Record& record) {
    try {
      records_.Append(record);
    } catch (const std::bad_alloc&) {
      names_.Drop(record.name);
      throw;
    }
    changed_ = true;
  }

  [[nodiscard]] RecordList<Record>& Records() { return records_; }
  [[nodiscard]] const RecordList<Record>& Records() const { return records_; }
  [[nodiscard]] NamePool& Names() { return names_; }
  [[nodiscard]] const NamePool& Names() const { return names_; }

 private:
  [[nodiscard]] Store& Self() { return static_cast<Store&>(*this); }
  [[nodiscard]] const Store& Self() const { return static_cast<const Store&>(*this); }

  void CloseNameGaps() {
    if (!names_.IsMostlyGaps()) return;
    NamePool packed;
    try {
      packed.MakeRoomFor(names_);
    } catch (const std::bad_alloc&) {
      return;  // the gaps stay until the next change
    }
    records_.ForEach([&](Record& record) { record.name = packed.Add(names_.View(record.name)); });
    names_ = std::move(packed);
  }

  RecordList<Record> records_;
  NamePool names_;
  bool changed_ = false;
};

}  // namespace tavix
