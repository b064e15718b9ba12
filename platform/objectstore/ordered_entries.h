// A sorted sequence of records with fast insertion anywhere.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tavix {

// Prefix sums of a sequence of counts, kept as a Fenwick tree: changing one count, summing the
// counts before a place, and finding the place of the n-th item all take logarithmic time.
class PrefixCounts {
 public:
  // One place for each count, in this order.
  void Assign(const std::vector<std::size_t>& counts);

  // Adds a place with a count of 0 at the end.
  void Append();

  void Change(std::size_t place, std::ptrdiff_t by);

  [[nodiscard]] std::size_t SumBefore(std::size_t place) const;

  struct Found {
    std::size_t place;
    std::size_t rest;  // of n, within the place
  };
  // The place that contains item n, counted from 0; n is less than the total.
  [[nodiscard]] Found Find(std::size_t n) const;

 private:
  std::vector<std::size_t> tree_;  // tree_[i]: the sum of the LowBit(i + 1) counts that end at i
};

// The numbers of records in a sequence, four bytes each. It is divided into short stretches: an
// insertion moves the entries of one stretch only, and the prefix sums of the stretches' lengths
// convert a position to an index and back. The caller keeps the order: it says where an entry goes.
class OrderedEntries {
 public:
  using Entry = std::uint32_t;

  struct Position {
    std::size_t stretch = 0;
    std::size_t offset = 0;
    friend bool operator==(Position, Position) = default;
  };

  [[nodiscard]] std::size_t Size() const { return size_; }
  [[nodiscard]] Position Begin() const { return {}; }
  [[nodiscard]] Position End() const { return {stretches_.size(), 0}; }
  [[nodiscard]] Entry At(Position position) const {
    return stretches_[position.stretch][position.offset];
  }
  [[nodiscard]] Position Next(Position position) const {
    if (++position.offset < stretches_[position.stretch].size()) return position;
    return {position.stretch + 1, 0};
  }

  [[nodiscard]] std::size_t Index(Position position) const {
    return lengths_.SumBefore(position.stretch) + position.offset;
  }
  // End for an index of Size() or more.
  [[nodiscard]] Position AtIndex(std::size_t index) const;

  // The first entry for which `before` is false. `before` must be true for all entries up to there
  // and false for all others.
  template <class Before>
  [[nodiscard]] Position Partition(Before before) const {
    const auto last = std::partition_point(lasts_.begin(), lasts_.end(), before);
    if (last == lasts_.end()) return End();
    const auto number = static_cast<std::size_t>(last - lasts_.begin());
    const Stretch& stretch = stretches_[number];
    const auto entry = std::partition_point(stretch.begin(), stretch.end(), before);
    return {number, static_cast<std::size_t>(entry - stretch.begin())};
  }

  // Before the entry at the position, or last at End.
  void Insert(Position position, Entry entry);
  void Erase(Position position);

  // Takes in entries that are in order, in one pass. `before(one, other)` is true when entry `one`
  // comes before entry `other`. After an exception only Clear may follow.
  template <class Before>
  void Merge(std::span<const Entry> sorted, Before before);

  void Clear();

  // Changes whenever positions change: a position is valid while this stays the same.
  [[nodiscard]] std::uint64_t Version() const { return version_; }

 private:
  using Stretch = std::vector<Entry>;  // never empty
  static constexpr std::size_t kMaxStretch = 256;

  // Last of all, without counting it.
  void PushBack(Entry entry);
  void Split(std::size_t stretch);
  void TallyStretches();

  std::vector<Stretch> stretches_;
  std::vector<Entry> lasts_;  // of each stretch, in one array for a fast search
  PrefixCounts lengths_;
  std::size_t size_ = 0;
  std::uint64_t version_ = 0;
};

template <class Before>
void OrderedEntries::Merge(std::span<const Entry> sorted, Before before) {
  if (sorted.empty()) return;
  std::vector<Stretch> old;
  // Entries that all come behind the others are appended.
  if (!stretches_.empty() && before(sorted.front(), stretches_.back().back())) {
    old.swap(stretches_);
  }
  auto next = sorted.begin();
  for (Stretch& stretch : old) {
    for (const Entry entry : stretch) {
      while (next != sorted.end() && before(*next, entry)) PushBack(*next++);
      PushBack(entry);
    }
    Stretch().swap(stretch);  // so that the sequence is never in memory twice
  }
  while (next != sorted.end()) PushBack(*next++);
  TallyStretches();
}

}  // namespace tavix
