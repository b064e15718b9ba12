// Finds records by their host key without scanning.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace tavix {

// A hash table from keys to positions in a record array. Two records may have the same
// key: each has its own entry. The keys are in the table too, so that a search does not touch the
// records.
//
// Open addressing with linear probing, at most half full.
class KeyIndex {
 public:
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;  // no position

  // Makes room for one entry more, so that the next Insert needs no memory.
  void MakeRoom() {
    if ((count_ + 1) * 2 > slots_.size()) Grow();
  }

  // True when another record with this key was there before; the search for it is the one for the
  // place of the new entry.
  bool Insert(std::int32_t key, std::uint32_t position) {
    MakeRoom();
    ++count_;
    return Place({key, position});
  }

  // Calls `visit(position)` for every record with this key, in no order, until it returns false.
  template <class Visit>
  void ForEach(std::int32_t key, Visit visit) const {
    if (slots_.empty()) return;
    for (std::size_t at = Home(key); !slots_[at].IsEmpty(); at = After(at)) {
      if (slots_[at].key == key && !visit(slots_[at].position)) return;
    }
  }

  // Removes the entry of one record, which must be in the table.
  void Erase(std::int32_t key, std::uint32_t position) {
    std::size_t gap = Home(key);
    while (slots_[gap].position != position) gap = After(gap);
    // Entries behind the gap move up, so that no probe ends too early.
    for (std::size_t at = After(gap); !slots_[at].IsEmpty(); at = After(at)) {
      const std::size_t home = Home(slots_[at].key);
      const bool reachable_past_gap =
          gap <= at ? gap < home && home <= at : gap < home || home <= at;
      if (!reachable_past_gap) {
        slots_[gap] = slots_[at];
        gap = at;
      }
    }
    slots_[gap] = Slot();
    --count_;
  }

  void Clear() {
    slots_.clear();
    slots_.shrink_to_fit();
    count_ = 0;
  }

 private:
  struct Slot {
    std::int32_t key = 0;
    std::uint32_t position = kNone;

    [[nodiscard]] bool IsEmpty() const { return position == kNone; }
  };

  [[nodiscard]] std::size_t Home(std::int32_t key) const {
    // Multiplication spreads runs of neighbouring keys; the high bits choose the slot.
    const std::uint64_t spread = static_cast<std::uint32_t>(key) * 0x9E3779B97F4A7C15ULL;
    return static_cast<std::size_t>(spread >> shift_);
  }
  [[nodiscard]] std::size_t After(std::size_t at) const { return (at + 1) & (slots_.size() - 1); }

  // True when an entry with this key lies before the place that is found.
  bool Place(Slot slot) {
    bool repeated = false;
    std::size_t at = Home(slot.key);
    for (; !slots_[at].IsEmpty(); at = After(at)) repeated = repeated || slots_[at].key == slot.key;
    slots_[at] = slot;
    return repeated;
  }

  void Grow() {
    constexpr std::size_t kFirst = 64;
    std::vector<Slot> old(slots_.empty() ? kFirst : slots_.size() * 2);
    slots_.swap(old);
    shift_ = 64;
    for (std::size_t size = slots_.size(); size > 1; size /= 2) --shift_;
    for (const Slot slot : old) {
      if (!slot.IsEmpty()) Place(slot);
    }
  }

  std::vector<Slot> slots_;
  std::size_t count_ = 0;
  int shift_ = 64;
};

}  // namespace tavix
