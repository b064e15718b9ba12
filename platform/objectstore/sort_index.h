// The records of one database in one of its sort orders.
#pragma once

#include <compare>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/objectstore/ordered_entries.h"
#include "platform/objectstore/record_heap.h"

namespace tavix {

// Makes one character of all its cases, so that strings can be compared without regard to case.
using CaseFold = char16_t (*)(char16_t);

// Of the letters A to Z only.
char16_t FoldAscii(char16_t character);

// Nothing is sorted until someone asks for the order: an index that no handle has ever used costs
// nothing, and records that arrive in a burst are put in order together.
//
// An order on no property is the order of creation.
class SortIndex {
 public:
  using Position = OrderedEntries::Position;
  using Slot = RecordHeap::Slot;

  // The heap and the fold must outlive the index.
  SortIndex(const SortOrder& order, const RecordHeap& heap, CaseFold fold)
      : order_(order), heap_(&heap), fold_(fold) {}

  [[nodiscard]] const SortOrder& Order() const { return order_; }

  // A record has come.
  void Add(Slot slot);
  // A record is about to go, or to change; it must still have its values.
  void Remove(Slot slot);
  // True when replacing the values of a record by `properties` moves it in this order.
  [[nodiscard]] bool Moves(Slot slot, std::span<const Property> properties) const;

  // Puts all records in order. The calls below see the order as of the last of these.
  void Settle();

  [[nodiscard]] const OrderedEntries& Entries() const { return entries_; }

  // Where a record is.
  [[nodiscard]] Position Find(Slot slot) const;

  // The first record with this value of the sort property, or behind it. Records without the
  // property have no place among the values.
  [[nodiscard]] Position FirstNotBefore(const Property& value) const;
  // The stretch of records that have the property.
  [[nodiscard]] Position KnownBegin() const;
  [[nodiscard]] Position KnownEnd() const;

  [[nodiscard]] bool HasValue(Position position, const Property& value) const;

 private:
  [[nodiscard]] OrderedEntry Entry(Slot slot) const;
  // The numbers settle nearly all of it: a search stays within the row.
  [[nodiscard]] bool Before(const OrderedEntry& one, const OrderedEntry& other) const {
    if (one.unknown == other.unknown && one.number != other.number)
      return one.number < other.number;
    return BeforeBeyondNumbers(one, other);
  }
  [[nodiscard]] bool BeforeBeyondNumbers(const OrderedEntry& one, const OrderedEntry& other) const;
  // The order of an entry's value and a value with its number; the entry has the property.
  [[nodiscard]] std::strong_ordering Compare(const OrderedEntry& entry, const Property& value,
                                             std::uint64_t number) const;

  SortOrder order_;
  const RecordHeap* heap_;
  CaseFold fold_;
  bool in_use_ = false;
  OrderedEntries entries_;
  std::vector<OrderedEntry> pending_;  // not yet among the entries
};

}  // namespace tavix
