#include "platform/objectstore/sort_index.h"

#include <algorithm>

namespace tavix {

void SortIndex::Add(Slot slot) {
  if (in_use_) pending_.push_back(Entry(slot));
}

void SortIndex::Remove(Slot slot) {
  if (!in_use_) return;
  Settle();
  entries_.Erase(Find(slot));
}

bool SortIndex::Moves(Slot slot, std::span<const Property> properties) const {
  const Property* old_value = FindProperty(heap_->Properties(slot), order_.property);
  const Property* new_value = FindProperty(properties, order_.property);
  if (!old_value || !new_value) return old_value != new_value;
  return !SameProperty(*old_value, *new_value);
}

void SortIndex::Settle() {
  if (!in_use_) {
    in_use_ = true;
    pending_.reserve(heap_->Count());
    for (Slot slot = 0; slot < heap_->SlotEnd(); ++slot) {
      if (heap_->Id(slot) != 0) pending_.push_back(Entry(slot));
    }
  }
  const auto before = [this](const OrderedEntry& one, const OrderedEntry& other) {
    return Before(one, other);
  };
  // A few are put in one by one; many are merged in one pass over everything.
  constexpr std::size_t kFewShare = 16;
  if (pending_.size() * kFewShare <= entries_.Size() || pending_.size() == 1) {
    for (const OrderedEntry& entry : pending_) {
      entries_.Insert(
          entries_.Partition([&](const OrderedEntry& other) { return Before(other, entry); }),
          entry);
    }
  } else if (!pending_.empty()) {
    std::sort(pending_.begin(), pending_.end(), before);
    const auto middle = static_cast<std::ptrdiff_t>(pending_.size());
    entries_.AppendTo(pending_);
    std::inplace_merge(pending_.begin(), pending_.begin() + middle, pending_.end(), before);
    entries_.Assign(pending_);
  }
  pending_.clear();
}

SortIndex::Position SortIndex::Find(Slot slot) const {
  const OrderedEntry entry = Entry(slot);
  return entries_.Partition([&](const OrderedEntry& other) { return Before(other, entry); });
}

SortIndex::Position SortIndex::FirstNotBefore(const Property& value) const {
  const std::uint64_t number = SortNumber(value, order_, fold_);
  return entries_.Partition([&](const OrderedEntry& entry) {
    if (entry.unknown) return order_.unknown_first;
    if (entry.number != number) return entry.number < number;
    return std::is_lt(Compare(entry, value, number));
  });
}

SortIndex::Position SortIndex::KnownBegin() const {
  if (!order_.unknown_first) return entries_.Begin();
  return entries_.Partition([](const OrderedEntry& entry) { return entry.unknown != 0; });
}

SortIndex::Position SortIndex::KnownEnd() const {
  if (order_.unknown_first) return entries_.End();
  return entries_.Partition([](const OrderedEntry& entry) { return entry.unknown == 0; });
}

bool SortIndex::HasValue(Position position, const Property& value) const {
  if (position == entries_.End()) return false;
  const OrderedEntry& entry = entries_.At(position);
  return !entry.unknown && std::is_eq(Compare(entry, value, SortNumber(value, order_, fold_)));
}

OrderedEntry SortIndex::Entry(Slot slot) const {
  OrderedEntry entry{.id = heap_->Id(slot), .slot = slot & 0x7FFFFFFFU};
  const Property* value = FindProperty(heap_->Properties(slot), order_.property);
  entry.unknown = value ? 0 : 1;
  if (value) entry.number = SortNumber(*value, order_, fold_);
  return entry;
}

bool SortIndex::BeforeBeyondNumbers(const OrderedEntry& one, const OrderedEntry& other) const {
  if (one.unknown != other.unknown) return (one.unknown != 0) == order_.unknown_first;
  if (order_.property.Type() == PropertyType::kString && !one.unknown && one.id != other.id) {
    const Property* value = FindProperty(heap_->Properties(other.slot), order_.property);
    const std::strong_ordering compared = Compare(one, *value, other.number);
    if (std::is_neq(compared)) return std::is_lt(compared);
  }
  return one.id < other.id;
}

std::strong_ordering SortIndex::Compare(const OrderedEntry& entry, const Property& value,
                                        std::uint64_t number) const {
  if (entry.number != number || order_.property.Type() != PropertyType::kString) {
    return entry.number <=> number;
  }
  const Property* own = FindProperty(heap_->Properties(entry.slot), order_.property);
  return CompareStrings(own->AsString(), value.AsString(), order_, fold_);
}

}  // namespace tavix
