// The records of one database in one of its sort orders.
#pragma once

#include <compare>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/objectstore/ordered_entries.h"
#include "platform/objectstore/record_heap.h"

namespace tavix {

// Maps all cases of a character to one, for case-insensitive comparison.
using CaseFold = char16_t (*)(char16_t);

// For the letters A to Z only.
char16_t FoldAscii(char16_t character);

// Sorting is deferred until the order is used: an index that no handle has used costs nothing, and
// records that were added in a burst are sorted together. An order that lacks more records than it
// has is dropped, as is one that there is no memory to keep, and sorted again later: only Settle
// throws for lack of memory.
//
// An order without a property is the order of creation.
class SortIndex {
 public:
  using Position = OrderedEntries::Position;
  using Slot = RecordHeap::Slot;

  // The heap and the fold must outlive the index.
  SortIndex(const SortOrder& order, const RecordHeap& heap, CaseFold fold)
      : order_(order), heap_(&heap), fold_(fold) {}

  [[nodiscard]] const SortOrder& Order() const { return order_; }

  // To be called after a record was added.
  void Add(Slot slot);
  // To be called before a record is deleted or changed, while it still has its values.
  void Remove(Slot slot);
  // True when replacing the values of a record by `properties` moves it in this order.
  [[nodiscard]] bool Moves(Slot slot, std::span<const Property> properties) const;

  // Puts all records in order. The calls below use the order as of the last Settle.
  void Settle();

  [[nodiscard]] const OrderedEntries& Entries() const { return entries_; }

  // The position of a record.
  [[nodiscard]] Position Find(Slot slot) const;

  // The first record with this value of the sort property or a later one. Records without the
  // property are not considered.
  [[nodiscard]] Position FirstNotBefore(const Property& value) const;
  // The range of records that have the property.
  [[nodiscard]] Position KnownBegin() const;
  [[nodiscard]] Position KnownEnd() const;

  [[nodiscard]] bool HasValue(Position position, const Property& value) const;

 private:
  // Forgets the order, which Settle then makes from the records again.
  void Drop();
  void SettleAll();

  // What decides where a record stands. Nearly always the numbers are enough, so that strings are
  // seldom compared.
  struct Key {
    std::uint64_t number = 0;  // of the sort property's value
    Slot slot = 0;
    bool unknown = false;  // the record has no such property
  };
  [[nodiscard]] Key KeyOf(Slot slot) const;
  [[nodiscard]] bool Before(const Key& one, const Key& other) const {
    if (one.unknown == other.unknown && one.number != other.number)
      return one.number < other.number;
    return BeforeBeyondNumbers(one, other);
  }
  [[nodiscard]] bool BeforeBeyondNumbers(const Key& one, const Key& other) const;
  // Compares a record's value with `value`, whose number is `number`; the record has the property.
  [[nodiscard]] std::strong_ordering Compare(const Key& key, const Property& value,
                                             std::uint64_t number) const;
  // Puts the pending records in order among themselves.
  void SortPending();

  SortOrder order_;
  const RecordHeap* heap_;
  CaseFold fold_;
  bool in_use_ = false;
  OrderedEntries entries_;
  std::vector<Slot> pending_;  // not yet among the entries
};

}  // namespace tavix
