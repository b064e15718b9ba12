// Finds records by their host key without scanning.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace tavix {

// A hash table from keys to positions in a record array. The array is the owner's, and each call
// gets it; a record has members `key` and `removed`, and the records that are not removed are those
// in the table. Two records may have the same key: each has its own entry.
//
// Open addressing with linear probing, at most half full. An entry is a single word: a position,
// and in the bits that positions leave free a part of the key's hash. So the table is small, and a
// search reads hardly any record but those it finds.
class KeyIndex {
 public:
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;  // no position

  // Makes room for the record that comes next in the array, so that its Insert needs no memory.
  template <class Record>
  void MakeRoom(std::span<const Record> records) {
    const std::size_t end = records.size() + 1;
    if (end < entries_.size() && (count_ + 1) * 2 <= entries_.size()) return;
    constexpr std::size_t kFirst = 64;
    KeyIndex larger(entries_.empty() ? kFirst : entries_.size() * 2);
    larger.Rebuild(records);
    *this = std::move(larger);
  }

  // Enters a record, for which there is room. True when another one with its key was there before;
  // the search for it is the one for the place of the new entry.
  template <class Record>
  bool Insert(std::span<const Record> records, std::uint32_t position) {
    const std::int32_t key = records[position].key;
    const Hash hash = HashOf(key);
    bool repeated = false;
    std::size_t at = hash.home;
    for (; entries_[at] != kEmpty; at = After(at)) {
      const std::uint32_t other = PositionIn(entries_[at], hash);
      repeated = repeated || (other != kNone && records[other].key == key);
    }
    entries_[at] = hash.rest | (position + 1);
    ++count_;
    return repeated;
  }

  // Calls `visit(position)` for every record with this key, in no order, until it returns false.
  template <class Record, class Visit>
  void ForEach(std::span<const Record> records, std::int32_t key, Visit visit) const {
    if (entries_.empty()) return;
    const Hash hash = HashOf(key);
    for (std::size_t at = hash.home; entries_[at] != kEmpty; at = After(at)) {
      const std::uint32_t position = PositionIn(entries_[at], hash);
      if (position != kNone && records[position].key == key && !visit(position)) return;
    }
  }

  // Removes the entry of one record, which must be in the table.
  template <class Record>
  void Erase(std::span<const Record> records, std::uint32_t position) {
    const Hash hash = HashOf(records[position].key);
    std::size_t gap = hash.home;
    while (entries_[gap] != (hash.rest | (position + 1))) gap = After(gap);
    // Entries behind the gap move up, so that no probe ends too early.
    for (std::size_t at = After(gap); entries_[at] != kEmpty; at = After(at)) {
      const std::size_t home = HashOf(records[(entries_[at] & PositionMask()) - 1].key).home;
      const bool reachable_past_gap =
          gap <= at ? gap < home && home <= at : gap < home || home <= at;
      if (!reachable_past_gap) {
        entries_[gap] = entries_[at];
        gap = at;
      }
    }
    entries_[gap] = kEmpty;
    --count_;
  }

  // Enters all records again, at most as many as before, whose positions are other ones now. Needs
  // no memory.
  template <class Record>
  void Rebuild(std::span<const Record> records) {
    entries_.assign(entries_.size(), kEmpty);
    count_ = 0;
    for (std::size_t position = 0; position < records.size(); ++position) {
      if (!records[position].removed) Insert(records, static_cast<std::uint32_t>(position));
    }
  }

  void Clear() { *this = KeyIndex(); }

  KeyIndex() = default;

 private:
  static constexpr std::uint32_t kEmpty = 0;  // entries have positions from 1 up

  // The bits of a key's hash.
  struct Hash {
    std::size_t home;    // where the search for the key begins: as many as positions have
    std::uint32_t rest;  // the others, where an entry has them
  };

  // `size` is a power of two.
  explicit KeyIndex(std::size_t size) : entries_(size, kEmpty), bits_(std::countr_zero(size)) {}

  [[nodiscard]] Hash HashOf(std::int32_t key) const {
    // Multiplication spreads runs of neighbouring keys; the high bits are the best ones.
    const std::uint64_t spread = static_cast<std::uint32_t>(key) * 0x9E3779B97F4A7C15ULL;
    const std::uint64_t both = spread >> 32 << bits_;
    return {static_cast<std::size_t>(both >> 32), static_cast<std::uint32_t>(both)};
  }
  [[nodiscard]] std::uint32_t PositionMask() const {
    return static_cast<std::uint32_t>(entries_.size() - 1);
  }
  // Of an entry whose key may be the one with this hash; kNone of another one.
  [[nodiscard]] std::uint32_t PositionIn(std::uint32_t entry, Hash hash) const {
    const std::uint32_t position = entry ^ hash.rest;
    return position <= PositionMask() ? position - 1 : kNone;
  }
  [[nodiscard]] std::size_t After(std::size_t at) const { return (at + 1) & (entries_.size() - 1); }

  std::vector<std::uint32_t> entries_;
  std::size_t count_ = 0;
  int bits_ = 0;  // of a position
};

}  // namespace tavix
