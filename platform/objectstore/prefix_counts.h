// Sums over the front of a row of counts.
#pragma once

#include <cstddef>
#include <vector>

namespace tavix {

// A Fenwick tree: changing one count, summing the counts before a place, and finding the place of
// the n-th counted thing all take logarithmic time.
class PrefixCounts {
 public:
  // One place for each count of the row, in its order.
  void Assign(const std::vector<std::size_t>& counts);

  // A further place at the end, with a count of 0.
  void Append();

  void Change(std::size_t place, std::ptrdiff_t by);

  [[nodiscard]] std::size_t SumBefore(std::size_t place) const;

  struct Found {
    std::size_t place;
    std::size_t rest;  // of n, within the place
  };
  // The place whose count takes in the n-th thing, counted from 0; n is less than the whole sum.
  [[nodiscard]] Found Find(std::size_t n) const;

 private:
  std::vector<std::size_t> tree_;  // tree_[i]: the sum of the LowBit(i + 1) counts that end at i
};

}  // namespace tavix
