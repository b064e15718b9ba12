// Which record holds the line between two point keys.
#pragma once

#include <cstdint>

#include "store/record_list.h"

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
class LineIndex {
 public:
  static constexpr std::uint32_t kNoRecord = 0;

  void Enter(LineKeys keys, std::uint32_t record) {
    entries_.Append({PairOf(keys), record, false});
  }

  // The first record of the pair, or kNoRecord.
  [[nodiscard]] std::uint32_t Find(LineKeys keys) const {
    const Entry* entry = entries_.Peek(PairOf(keys));
    return entry ? entry->record : kNoRecord;
  }

  // Removes the first record of the pair, if there is one.
  void Remove(LineKeys keys) {
    if (entries_.FindFirst(PairOf(keys)) == 0) entries_.RemoveCurrent();
  }

  void Clear() { entries_.Clear(); }

 private:
  struct Entry {
    std::int32_t key;
    std::uint32_t record;
    bool removed;
  };

  // Both keys in one number.
  [[nodiscard]] static std::int32_t PairOf(LineKeys keys) {
    return static_cast<std::int32_t>(
        static_cast<std::uint32_t>(static_cast<std::uint16_t>(keys.Smaller())) << 16 |
        static_cast<std::uint16_t>(keys.Larger()));
  }

  RecordList<Entry> entries_;
};

}  // namespace tavix
