#include "platform/objectstore/cursor.h"

namespace tavix {

Cursor::Cursor(SortIndex& index, const RecordHeap& heap, bool auto_increment)
    : index_(&index), heap_(&heap), auto_increment_(auto_increment) {
  index_->Settle();
  StandAt(index_->Entries().Begin());
}

Outcome<ObjectId> Cursor::Seek(const SeekTarget& target) {
  index_->Settle();
  const auto size = static_cast<std::int64_t>(index_->Entries().Size());
  switch (target.kind) {
    case SeekTarget::Kind::kBeginning:
      return StandAtIndex(target.offset);
    case SeekTarget::Kind::kEnd:
      return StandAtIndex(size - 1 - target.offset);
    case SeekTarget::Kind::kCurrent:
      return SeekFromHere(target.offset);
    case SeekTarget::Kind::kSmaller:
    case SeekTarget::Kind::kFirstEqual:
    case SeekTarget::Kind::kGreater:
    case SeekTarget::Kind::kNextEqual:
      if (Order().property.IsNone() || target.value.Id() != Order().property) break;
      return SeekValue(target.kind, target.value);
    case SeekTarget::Kind::kObject:
      break;
  }
  return StoreError::kInvalidParameter;
}

void Cursor::StandOn(Slot slot) {
  record_ = slot;
  deleted_ = false;
  version_ = index_->Entries().Version() - 1;
}

std::uint32_t Cursor::Index() {
  index_->Settle();
  return static_cast<std::uint32_t>(index_->Entries().Index(Locate()));
}

Outcome<RecordView> Cursor::Peek() const {
  if (deleted_) return StoreError::kDeleted;
  if (!record_) return StoreError::kNoMoreItems;
  return RecordView{heap_->Id(*record_), heap_->Properties(*record_)};
}

Outcome<RecordView> Cursor::Read() {
  const Outcome<RecordView> view = Peek();
  if (view && auto_increment_) {
    index_->Settle();
    StandAt(NextRecord());
  }
  return view;
}

void Cursor::BeforeDelete(Slot slot) {
  if (record_ != slot) return;
  const bool on_it = !deleted_;
  record_ = Successor();
  deleted_ = deleted_ || (on_it && !auto_increment_);
}

void Cursor::BeforeMove(Slot slot) {
  if (deleted_ && record_ == slot) record_ = Successor();
}

SortIndex::Position Cursor::Locate() {
  if (version_ != index_->Entries().Version()) {
    position_ = index_->Find(*record_);
    version_ = index_->Entries().Version();
  }
  return position_;
}

Outcome<ObjectId> Cursor::StandAt(Position position) {
  deleted_ = false;
  if (position == index_->Entries().End()) {
    record_.reset();
    return StoreError::kNoMoreItems;
  }
  record_ = index_->Entries().At(position);
  position_ = position;
  version_ = index_->Entries().Version();
  return heap_->Id(*record_);
}

Outcome<ObjectId> Cursor::StandAtIndex(std::int64_t index) {
  const bool inside = index >= 0;
  return StandAt(inside ? index_->Entries().AtIndex(static_cast<std::size_t>(index))
                        : index_->Entries().End());
}

Outcome<ObjectId> Cursor::SeekFromHere(std::int64_t offset) {
  if (offset == 0 && deleted_) return StoreError::kDeleted;
  if (offset == 1 && record_) return StandAt(NextRecord());
  auto here = static_cast<std::int64_t>(index_->Entries().Size());
  if (record_) here = static_cast<std::int64_t>(index_->Entries().Index(Locate()));
  // The place of a deleted record is just before the record that followed it.
  if (deleted_ && offset > 0) --here;
  return StandAtIndex(here + offset);
}

Outcome<ObjectId> Cursor::SeekValue(SeekTarget::Kind kind, const Property& value) {
  const OrderedEntries& entries = index_->Entries();
  Position found = entries.End();
  if (kind == SeekTarget::Kind::kSmaller) {
    found = Smaller(value);
  } else if (kind == SeekTarget::Kind::kNextEqual) {
    found = record_ ? NextRecord() : entries.End();
  } else {
    found = index_->FirstNotBefore(value);
  }
  if (kind == SeekTarget::Kind::kGreater && found == index_->KnownEnd()) found = entries.End();
  const bool must_equal =
      kind == SeekTarget::Kind::kFirstEqual || kind == SeekTarget::Kind::kNextEqual;
  if (must_equal && !index_->HasValue(found, value)) found = entries.End();
  return StandAt(found);
}

// Of the records with the nearest value before `value`, the first.
SortIndex::Position Cursor::Smaller(const Property& value) const {
  const OrderedEntries& entries = index_->Entries();
  const Position behind = index_->FirstNotBefore(value);
  if (behind == index_->KnownBegin()) return entries.End();
  const std::size_t last = (behind == entries.End() ? entries.Size() : entries.Index(behind)) - 1;
  const Slot slot = entries.At(entries.AtIndex(last));
  return index_->FirstNotBefore(*heap_->Properties(slot).Find(Order().property));
}

// The record after the cursor, which must not be at the end.
SortIndex::Position Cursor::NextRecord() {
  const Position here = Locate();
  return deleted_ ? here : index_->Entries().Next(here);
}

std::optional<Cursor::Slot> Cursor::Successor() {
  index_->Settle();
  const Position next = index_->Entries().Next(Locate());
  version_ = index_->Entries().Version() - 1;
  if (next == index_->Entries().End()) return std::nullopt;
  return index_->Entries().At(next);
}

}  // namespace tavix
