// Which record holds the line between two point keys.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tavix {

// A line's two ends. Compatibility: the record has room for 16 bits of a key, so a key beyond that
// range stands for the one with the same low 16 bits, which is also what a redraw looks up.
struct LineKeys {
  std::int16_t a = 0;
  std::int16_t b = 0;

  [[nodiscard]] static LineKeys Of(int a, int b) {
    return {static_cast<std::int16_t>(a), static_cast<std::int16_t>(b)};
  }
  [[nodiscard]] std::int16_t Smaller() const { return a < b ? a : b; }
  [[nodiscard]] std::int16_t Larger() const { return a < b ? b : a; }
  [[nodiscard]] bool LargerFirst() const { return b < a; }
};

// Records by the pair of keys of their line, in either direction. Several records may hold one
// pair: the first entered counts, and after its removal the next.
//
// A hash table with linear probing, eight bytes a place and at most four fifths full: lines are
// many. Of records with one pair the first entered is the first that a search meets.
class LineIndex {
 public:
  static constexpr std::uint32_t kNoRecord = 0;

  // Without memory for it the index stays as it is.
  void Enter(LineKeys keys, std::uint32_t record) {
    if ((count_ + 1) * 5 > entries_.size() * 4) Grow();
    ++count_;
    Put({PairOf(keys), record});
  }

  // The first record of the pair, or kNoRecord.
  [[nodiscard]] std::uint32_t Find(LineKeys keys) const {
    return entries_.empty() ? kNoRecord : entries_[FirstOf(PairOf(keys))].record;
  }

  // Removes the first record of the pair, if there is one.
  void Remove(LineKeys keys) {
    if (Find(keys) == kNoRecord) return;
    std::size_t gap = FirstOf(PairOf(keys));
    // Entries behind the gap move up, so that no search ends too early.
    for (std::size_t at = After(gap); entries_[at].record != kNoRecord; at = After(at)) {
      const std::size_t home = HomeOf(entries_[at].pair);
      const bool is_found_past_gap =
          gap <= at ? gap < home && home <= at : gap < home || home <= at;
      if (!is_found_past_gap) {
        entries_[gap] = entries_[at];
        gap = at;
      }
    }
    entries_[gap] = Entry();
    --count_;
  }

  void Clear() {
    entries_ = {};
    count_ = 0;
  }

 private:
  struct Entry {
    std::uint32_t pair = 0;
    std::uint32_t record = kNoRecord;
  };

  // Both keys in one number.
  [[nodiscard]] static std::uint32_t PairOf(LineKeys keys) {
    return static_cast<std::uint32_t>(static_cast<std::uint16_t>(keys.Smaller())) << 16 |
           static_cast<std::uint16_t>(keys.Larger());
  }

  [[nodiscard]] std::size_t HomeOf(std::uint32_t pair) const {
    // The upper half of the product is well mixed; it is scaled to the number of places.
    const std::uint64_t mixed = pair * 0x9E3779B97F4A7C15U >> 32;
    return static_cast<std::size_t>(mixed * entries_.size() >> 32);
  }
  [[nodiscard]] std::size_t After(std::size_t at) const {
    return at + 1 == entries_.size() ? 0 : at + 1;
  }
  // The place of the first record of the pair, or the free place where a search for it ends.
  [[nodiscard]] std::size_t FirstOf(std::uint32_t pair) const {
    std::size_t at = HomeOf(pair);
    while (entries_[at].record != kNoRecord && entries_[at].pair != pair) at = After(at);
    return at;
  }

  void Put(Entry entry) {
    std::size_t at = HomeOf(entry.pair);
    while (entries_[at].record != kNoRecord) at = After(at);
    entries_[at] = entry;
  }

  void Grow() {
    constexpr std::size_t kFirst = 64;
    std::vector<Entry> old(std::max(kFirst, entries_.size() + entries_.size() / 2));
    entries_.swap(old);
    // From behind a free place on, so that records with one pair keep their order.
    std::size_t start = 0;
    while (start < old.size() && old[start].record != kNoRecord) ++start;
    const auto from = old.begin() + static_cast<std::ptrdiff_t>(start);
    const auto put = [this](Entry entry) {
      if (entry.record != kNoRecord) Put(entry);
    };
    std::for_each(from, old.end(), put);
    std::for_each(old.begin(), from, put);
  }

  std::vector<Entry> entries_;
  std::size_t count_ = 0;
};

}  // namespace tavix
