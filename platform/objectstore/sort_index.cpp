#include "platform/objectstore/sort_index.h"

#include <algorithm>
#include <bit>
#include <new>
#include <optional>
#include <string_view>
#include <utility>

namespace tavix {

// ---- The order of property values, expressed as one number as far as possible

namespace {

constexpr std::uint64_t kSignBit = std::uint64_t{1} << 63;

// Two's complement to an unsigned number in the same order: negative values come first.
std::uint64_t FromSigned(std::int64_t value) {
  return static_cast<std::uint64_t>(value) ^ kSignBit;
}

// The bits of IEEE doubles increase with positive values and decrease with negative ones. Both
// zeros are one value; NaN sorts beyond the infinities.
std::uint64_t FromDouble(double value) {
  const auto bits = std::bit_cast<std::uint64_t>(value == 0.0 ? 0.0 : value);
  return (bits & kSignBit) != 0 ? ~bits : bits | kSignBit;
}

std::uint64_t FromString(std::u16string_view text, const SortOrder& order, CaseFold fold) {
  constexpr std::size_t kUnits = sizeof(std::uint64_t) / sizeof(char16_t);
  std::uint64_t number = 0;
  for (std::size_t i = 0; i < kUnits; ++i) {
    const char16_t unit = i < text.size() ? text[i] : u'\0';
    number = number << 16 | (order.ignore_case ? fold(unit) : unit);
  }
  return number;
}

std::uint64_t Ascending(const Property& value, const SortOrder& order, CaseFold fold) {
  switch (value.Type()) {
    case PropertyType::kI2:
      return FromSigned(value.AsI2());
    case PropertyType::kI4:
      return FromSigned(value.AsI4());
    case PropertyType::kR8:
      return FromDouble(value.AsR8());
    case PropertyType::kString:
      return FromString(value.AsString(), order, fold);
    case PropertyType::kUI2:
    case PropertyType::kUI4:
    case PropertyType::kBool:
    case PropertyType::kFileTime:
    case PropertyType::kBlob:
      break;
  }
  return value.AsFileTime();
}

// A number that increases along the order. Two values of one type other than string have equal
// numbers exactly when they are equal; two strings with equal numbers agree in their first four
// characters, and CompareStrings decides.
std::uint64_t SortNumber(const Property& value, const SortOrder& order, CaseFold fold) {
  const std::uint64_t number = Ascending(value, order, fold);
  return order.descending ? ~number : number;
}

// The order of two strings: by UTF-16 units, a prefix before the longer string.
std::strong_ordering CompareStrings(std::u16string_view one, std::u16string_view other,
                                    const SortOrder& order, CaseFold fold) {
  const auto compare_units = [&](char16_t left, char16_t right) {
    return order.ignore_case ? fold(left) <=> fold(right) : left <=> right;
  };
  if (order.descending) std::swap(one, other);
  return std::lexicographical_compare_three_way(one.begin(), one.end(), other.begin(), other.end(),
                                                compare_units);
}

}  // namespace

char16_t FoldAscii(char16_t character) {
  const bool small = character >= u'a' && character <= u'z';
  return small ? static_cast<char16_t>(character - u'a' + u'A') : character;
}

// ---- SortIndex

void SortIndex::Add(Slot slot) {
  if (!in_use_) return;
  constexpr std::size_t kFew = 256;
  if (pending_.size() >= std::max(entries_.Size(), kFew)) return Drop();
  try {
    pending_.push_back(slot);
  } catch (const std::bad_alloc&) {
    Drop();
  }
}

void SortIndex::Remove(Slot slot) {
  if (!in_use_) return;
  try {
    Settle();
    entries_.Erase(Find(slot));
  } catch (const std::bad_alloc&) {
    Drop();
  }
}

void SortIndex::Drop() {
  in_use_ = false;
  pending_ = {};
  entries_.Clear();
}

bool SortIndex::Moves(Slot slot, std::span<const Property> properties) const {
  const std::optional<Property> old_value = heap_->Properties(slot).Find(order_.property);
  const Property* new_value = FindProperty(properties, order_.property);
  if (!old_value || !new_value) return old_value.has_value() != (new_value != nullptr);
  return !SameProperty(*old_value, *new_value);
}

void SortIndex::Settle() {
  try {
    SettleAll();
  } catch (const std::bad_alloc&) {
    Drop();
    throw;
  }
}

void SortIndex::SettleAll() {
  if (!in_use_) {
    in_use_ = true;
    pending_.reserve(heap_->Count());
    for (Slot slot = 0; slot < heap_->SlotEnd(); ++slot) {
      if (heap_->Id(slot) != 0) pending_.push_back(slot);
    }
  }
  if (pending_.empty()) return;
  // A few records are inserted one by one; many are merged in one pass.
  constexpr std::size_t kFewShare = 16;
  if (pending_.size() == 1 || pending_.size() * kFewShare <= entries_.Size()) {
    for (const Slot slot : pending_) entries_.Insert(Find(slot), slot);
    pending_.clear();
    return;
  }
  SortPending();
  // A pending record is compared with many others in turn.
  Key pending = KeyOf(pending_.front());
  entries_.Merge(pending_, [&](Slot one, Slot other) {
    if (pending.slot != one) pending = KeyOf(one);
    return Before(pending, KeyOf(other));
  });
  pending_ = {};
}

void SortIndex::SortPending() {
  std::vector<Key> keys;
  keys.reserve(pending_.size());
  for (const Slot slot : pending_) keys.push_back(KeyOf(slot));
  const auto before = [this](const Key& one, const Key& other) { return Before(one, other); };
  if (std::ranges::is_sorted(keys, before)) return;
  std::ranges::sort(keys, before);
  std::ranges::transform(keys, pending_.begin(), &Key::slot);
}

SortIndex::Position SortIndex::Find(Slot slot) const {
  const Key key = KeyOf(slot);
  return entries_.Partition([&](Slot other) { return Before(KeyOf(other), key); });
}

SortIndex::Position SortIndex::FirstNotBefore(const Property& value) const {
  const std::uint64_t number = SortNumber(value, order_, fold_);
  return entries_.Partition([&](Slot slot) {
    const Key key = KeyOf(slot);
    if (key.unknown) return order_.unknown_first;
    if (key.number != number) return key.number < number;
    return std::is_lt(Compare(key, value, number));
  });
}

SortIndex::Position SortIndex::KnownBegin() const {
  if (!order_.unknown_first) return entries_.Begin();
  return entries_.Partition([this](Slot slot) { return KeyOf(slot).unknown; });
}

SortIndex::Position SortIndex::KnownEnd() const {
  if (order_.unknown_first) return entries_.End();
  return entries_.Partition([this](Slot slot) { return !KeyOf(slot).unknown; });
}

bool SortIndex::HasValue(Position position, const Property& value) const {
  if (position == entries_.End()) return false;
  const Key key = KeyOf(entries_.At(position));
  return !key.unknown && std::is_eq(Compare(key, value, SortNumber(value, order_, fold_)));
}

SortIndex::Key SortIndex::KeyOf(Slot slot) const {
  const std::optional<Property> value = heap_->Properties(slot).Find(order_.property);
  return {.number = value ? SortNumber(*value, order_, fold_) : 0, .slot = slot, .unknown = !value};
}

bool SortIndex::BeforeBeyondNumbers(const Key& one, const Key& other) const {
  if (one.unknown != other.unknown) return one.unknown == order_.unknown_first;
  if (order_.property.Type() == PropertyType::kString && !one.unknown && one.slot != other.slot) {
    const std::optional<Property> value = heap_->Properties(other.slot).Find(order_.property);
    const std::strong_ordering compared = Compare(one, *value, other.number);
    if (std::is_neq(compared)) return std::is_lt(compared);
  }
  return heap_->Id(one.slot) < heap_->Id(other.slot);
}

std::strong_ordering SortIndex::Compare(const Key& key, const Property& value,
                                        std::uint64_t number) const {
  if (key.number != number || order_.property.Type() != PropertyType::kString) {
    return key.number <=> number;
  }
  const std::optional<Property> own = heap_->Properties(key.slot).Find(order_.property);
  return CompareStrings(own->AsString(), value.AsString(), order_, fold_);
}

}  // namespace tavix
