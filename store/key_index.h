// Finds records by their host key without scanning.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace tavix {

// A hash table from keys to positions in a record array. Two records may have one key (a store does
// not forbid it): each has its own entry. The keys stay in the records; the table holds positions
// only and asks its caller for the key at a position.
//
// Open addressing with linear probing, at most half full.
class KeyIndex {
 public:
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;

  template <class KeyAt>
  void Insert(std::int32_t key, std::uint32_t position, KeyAt key_at) {
    if ((count_ + 1) * 2 > slots_.size()) Grow(key_at);
    Place(key, position);
    ++count_;
  }

  // Calls `visit(position)` for every record with this key, in no order, until it returns false.
  template <class KeyAt, class Visit>
  void ForEach(std::int32_t key, KeyAt key_at, Visit visit) const {
    if (slots_.empty()) return;
    for (std::size_t slot = Home(key); slots_[slot] != kNone; slot = After(slot)) {
      if (key_at(slots_[slot]) == key && !visit(slots_[slot])) return;
    }
  }

  // Removes the entry of one record, which must be in the table.
  template <class KeyAt>
  void Erase(std::int32_t key, std::uint32_t position, KeyAt key_at) {
    std::size_t gap = Home(key);
    while (slots_[gap] != position) gap = After(gap);
    // Entries behind the gap move up, so that no probe ends too early.
    for (std::size_t slot = After(gap); slots_[slot] != kNone; slot = After(slot)) {
      const std::size_t home = Home(key_at(slots_[slot]));
      const bool reachable_past_gap =
          gap <= slot ? gap < home && home <= slot : gap < home || home <= slot;
      if (!reachable_past_gap) {
        slots_[gap] = slots_[slot];
        gap = slot;
      }
    }
    slots_[gap] = kNone;
    --count_;
  }

  void Clear() {
    slots_.clear();
    slots_.shrink_to_fit();
    count_ = 0;
  }

 private:
  [[nodiscard]] std::size_t Home(std::int32_t key) const {
    // Multiplication spreads runs of neighbouring keys; the high bits choose the slot.
    const std::uint64_t spread = static_cast<std::uint32_t>(key) * 0x9E3779B97F4A7C15ULL;
    return static_cast<std::size_t>(spread >> shift_);
  }
  [[nodiscard]] std::size_t After(std::size_t slot) const {
    return (slot + 1) & (slots_.size() - 1);
  }

  void Place(std::int32_t key, std::uint32_t position) {
    std::size_t slot = Home(key);
    while (slots_[slot] != kNone) slot = After(slot);
    slots_[slot] = position;
  }

  template <class KeyAt>
  void Grow(KeyAt key_at) {
    constexpr std::size_t kFirst = 64;
    std::vector<std::uint32_t> old = std::move(slots_);
    slots_.assign(old.empty() ? kFirst : old.size() * 2, kNone);
    shift_ = 64;
    for (std::size_t size = slots_.size(); size > 1; size /= 2) --shift_;
    for (const std::uint32_t position : old) {
      if (position != kNone) Place(key_at(position), position);
    }
  }

  std::vector<std::uint32_t> slots_;
  std::size_t count_ = 0;
  int shift_ = 64;
};

}  // namespace tavix
