// An ordered list of keyed records with a cursor.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "store/key_index.h"

namespace tavix {

// Records in the order they were entered. `Record` has a member `key` and a flag `removed`; keys
// may repeat. A removed record leaves a hole that is closed later, so that positions keep their
// order and removal costs no shifting.
//
// The cursor names the current record or none. Removing and clearing reset it.
template <class Record>
class RecordList {
 public:
  using Position = std::uint32_t;

  [[nodiscard]] std::size_t Count() const { return live_; }
  [[nodiscard]] bool IsEmpty() const { return live_ == 0; }

  // ---- Cursor

  [[nodiscard]] Record* Current() { return cursor_ ? &records_[*cursor_] : nullptr; }
  [[nodiscard]] const Record* Current() const { return cursor_ ? &records_[*cursor_] : nullptr; }

  // 0, or -1 for an empty list.
  int First() {
    cursor_ = NextLive(0);
    return cursor_ ? 0 : -1;
  }

  // 0, -1 at the end (there is no cursor then), -2 without a cursor.
  int Next() {
    if (!cursor_) return -2;
    cursor_ = NextLive(*cursor_ + 1);
    return cursor_ ? 0 : -1;
  }

  // Puts the cursor on the first record with the key; without one there is no cursor. 0 or -1.
  int FindFirst(std::int32_t key) {
    cursor_ = FirstWithKey(key);
    return cursor_ ? 0 : -1;
  }

  // Puts the cursor on the record with the key that lies nearest to it, searching outward:
  // backwards from the cursor's record itself and forwards from the one after it, backwards first
  // at each step. Without a cursor the search runs from the head. 0, or -1 with the cursor as it
  // was.
  int FindOutward(std::int32_t key) {
    const std::optional<Position> found =
        cursor_ && repeated_keys_ != 0 ? NearestWithKey(key, *cursor_) : FirstWithKey(key);
    if (!found) return -1;
    cursor_ = found;
    return 0;
  }

  // ---- Changes

  // Without memory for it the list stays as it is.
  Record& Append(const Record& record) {
    const auto position = static_cast<Position>(records_.size());
    index_.MakeRoom(ByPosition());
    records_.push_back(record);
    if (index_.Insert(ByPosition(), position)) ++repeated_keys_;
    ++live_;
    return records_.back();
  }

  // Removes the current record, of which there must be one; then there is no cursor.
  void RemoveCurrent() {
    Record& record = records_[*cursor_];
    index_.Erase(ByPosition(), *cursor_);
    record.removed = true;
    --live_;
    ++removals_;
    if (FirstWithKey(record.key)) --repeated_keys_;
    cursor_.reset();
    if (records_.size() - live_ > std::max(live_, kFewHoles)) CloseHoles();
  }

  void Clear() {
    records_.clear();
    records_.shrink_to_fit();
    index_.Clear();
    live_ = 0;
    repeated_keys_ = 0;
    ++numbering_;
    ++removals_;
    cursor_.reset();
  }

  // ---- Visits in list order that leave the cursor alone

  // Calls `visit(const Record&)` for each record.
  template <class Visit>
  void ForEach(Visit visit) const {
    for (const Record& record : records_) {
      if (!record.removed) visit(record);
    }
  }

  // The same with records that may be changed, their keys excepted.
  template <class Visit>
  void ForEach(Visit visit) {
    for (Record& record : records_) {
      if (!record.removed) visit(record);
    }
  }

  // ---- Positions, ascending in list order, removed records included

  // All records by their positions.
  [[nodiscard]] std::span<const Record> ByPosition() const { return records_; }
  // Changes whenever records get other positions.
  [[nodiscard]] std::uint64_t Numbering() const { return numbering_; }
  // Changes whenever records are removed. As long as it stays the same, records keep their
  // positions.
  [[nodiscard]] std::uint64_t Removals() const { return removals_; }
  // Of the current record, of which there must be one.
  [[nodiscard]] Position CurrentPosition() const { return *cursor_; }
  // Of the first record with the key, or nothing; leaves the cursor alone.
  [[nodiscard]] std::optional<Position> PositionOf(std::int32_t key) const {
    return FirstWithKey(key);
  }

  // The first record with the key, or null; leaves the cursor alone.
  [[nodiscard]] const Record* Peek(std::int32_t key) const {
    const std::optional<Position> found = FirstWithKey(key);
    return found ? &records_[*found] : nullptr;
  }

 private:
  static constexpr std::size_t kFewHoles = 64;

  [[nodiscard]] std::optional<Position> NextLive(Position from) const {
    for (Position at = from; at < records_.size(); ++at) {
      if (!records_[at].removed) return at;
    }
    return std::nullopt;
  }

  [[nodiscard]] std::optional<Position> FirstWithKey(std::int32_t key) const {
    Position first = KeyIndex::kNone;
    index_.ForEach(ByPosition(), key, [&](Position position) {
      first = std::min(first, position);
      return repeated_keys_ != 0;
    });
    if (first == KeyIndex::kNone) return std::nullopt;
    return first;
  }

  // The outward search step by step: of two records with one key the one with fewer records between
  // it and the cursor is found.
  [[nodiscard]] std::optional<Position> NearestWithKey(std::int32_t key, Position start) const {
    Position back = start + 1;  // records from `back` on have been tried
    std::optional<Position> ahead = NextLive(start + 1);
    while (back > 0 || ahead) {
      while (back > 0 && records_[back - 1].removed) --back;
      if (back > 0 && records_[--back].key == key) return back;
      if (ahead) {
        if (records_[*ahead].key == key) return ahead;
        ahead = NextLive(*ahead + 1);
      }
    }
    return std::nullopt;
  }

  void CloseHoles() {
    ++numbering_;
    std::erase_if(records_, [](const Record& record) { return record.removed; });
    index_.Rebuild(ByPosition());
  }

  std::vector<Record> records_;
  KeyIndex index_;
  std::size_t live_ = 0;
  std::size_t repeated_keys_ = 0;  // records whose key an earlier record has too
  std::uint64_t numbering_ = 0;
  std::uint64_t removals_ = 0;
  std::optional<Position> cursor_;
};

}  // namespace tavix
