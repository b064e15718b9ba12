// The seek pointer of one open handle.
#pragma once

#include <optional>

#include "platform/objectstore/sort_index.h"

namespace tavix {

// It is on a record, at the end of the order, or at the place of a deleted record: then the record
// that followed is remembered, so that a walk goes on there. Changes to other records do not move
// it.
class Cursor {
 public:
  using Slot = RecordHeap::Slot;

  // Starts on the first record. The index and the heap must outlive the cursor. An incrementing
  // cursor goes on to the next record after each read, and when its record is deleted.
  Cursor(SortIndex& index, const RecordHeap& heap, bool auto_increment);

  [[nodiscard]] const SortOrder& Order() const { return index_->Order(); }

  // Every kind of seek except the one for an object, which is StandOn. A seek that finds nothing
  // leaves the cursor at the end with kNoMoreItems; kInvalidParameter for a value of another
  // property than the order's.
  Outcome<ObjectId> Seek(const SeekTarget& target);

  void StandOn(Slot slot);

  // Where the record under the cursor is in the order; there must be one.
  [[nodiscard]] std::uint32_t Index();

  [[nodiscard]] Outcome<RecordView> Peek() const;
  Outcome<RecordView> Read();

  // To be called before a record is deleted, or moves within this cursor's order.
  void BeforeDelete(Slot slot);
  void BeforeMove(Slot slot);

 private:
  using Position = SortIndex::Position;

  // Where the remembered record is; there must be one.
  [[nodiscard]] Position Locate();
  Outcome<ObjectId> StandAt(Position position);
  Outcome<ObjectId> StandAtIndex(std::int64_t index);
  Outcome<ObjectId> SeekFromHere(std::int64_t offset);
  Outcome<ObjectId> SeekValue(SeekTarget::Kind kind, const Property& value);
  [[nodiscard]] Position Smaller(const Property& value) const;
  [[nodiscard]] Position NextRecord();
  [[nodiscard]] std::optional<Slot> Successor();

  SortIndex* index_;
  const RecordHeap* heap_;
  bool auto_increment_;

  std::optional<Slot> record_;  // none: the end
  bool deleted_ = false;  // the cursor's record was deleted; `record_` is the one that followed it

  Position position_;  // of `record_`, valid while the entries have version `version_`
  std::uint64_t version_ = 0;
};

}  // namespace tavix
