// The records of one database in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/objectstore/object_store.h"

namespace tavix {

// Records have numbered slots. The properties of all records share one array, of which each record
// has a stretch; strings and blobs are separate allocations that the heap owns. A slot keeps its
// number while its record exists and may be reused afterwards.
class RecordHeap {
 public:
  using Slot = std::uint32_t;

  RecordHeap() = default;
  RecordHeap(const RecordHeap&) = delete;
  RecordHeap& operator=(const RecordHeap&) = delete;
  ~RecordHeap();

  // The values are copied. Add and Replace leave the heap as it is when there is no memory for
  // them; Remove needs none.
  Slot Add(ObjectId id, std::span<const Property> properties);

  // `properties` may point into the heap, as those of the same record do.
  void Replace(Slot slot, std::span<const Property> properties);

  void Remove(Slot slot);

  [[nodiscard]] ObjectId Id(Slot slot) const { return records_[slot].id; }

  // Valid until the heap changes.
  [[nodiscard]] std::span<const Property> Properties(Slot slot) const {
    const Record& record = records_[slot];
    return {cells_.data() + record.first, record.count};
  }

  // All slots are below this one; those with the identifier 0 are free.
  [[nodiscard]] Slot SlotEnd() const { return static_cast<Slot>(records_.size()); }

  [[nodiscard]] std::size_t Count() const { return records_.size() - free_slots_.size(); }

  // The size of all values in bytes.
  [[nodiscard]] std::uint64_t Bytes() const { return bytes_; }

 private:
  struct Record {
    ObjectId id = 0;
    std::uint32_t first = 0;  // in cells_
    std::uint32_t count = 0;  // of cells, all in use
  };

  // A stretch of cells for `count` properties: a free one, or a new one at the end.
  std::uint32_t TakeCells(std::uint32_t count);
  void GiveCellsBack(std::uint32_t first, std::uint32_t count);
  // Copies the values; without memory for them nothing is changed.
  Record Store(ObjectId id, std::span<const Property> properties);
  void MakeSlot();
  void Drop(const Record& record);

  std::vector<Record> records_;
  std::vector<Slot> free_slots_;
  std::vector<Property> cells_;
  std::vector<std::vector<std::uint32_t>> free_cells_;  // by length of the stretch
  std::uint64_t bytes_ = 0;
};

}  // namespace tavix
