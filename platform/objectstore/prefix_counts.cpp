#include "platform/objectstore/prefix_counts.h"

#include <bit>

namespace tavix {
namespace {

std::size_t LowBit(std::size_t n) { return n & (~n + 1); }

}  // namespace

void PrefixCounts::Assign(const std::vector<std::size_t>& counts) {
  tree_ = counts;
  for (std::size_t n = 1; n <= tree_.size(); ++n) {
    const std::size_t above = n + LowBit(n);
    if (above <= tree_.size()) tree_[above - 1] += tree_[n - 1];
  }
}

void PrefixCounts::Append() {
  const std::size_t n = tree_.size() + 1;
  const std::size_t covered_from = n - LowBit(n);
  tree_.push_back(SumBefore(n - 1) - SumBefore(covered_from));
}

void PrefixCounts::Change(std::size_t place, std::ptrdiff_t by) {
  for (std::size_t n = place + 1; n <= tree_.size(); n += LowBit(n)) {
    tree_[n - 1] += static_cast<std::size_t>(by);
  }
}

std::size_t PrefixCounts::SumBefore(std::size_t place) const {
  std::size_t sum = 0;
  for (std::size_t n = place; n > 0; n -= LowBit(n)) sum += tree_[n - 1];
  return sum;
}

PrefixCounts::Found PrefixCounts::Find(std::size_t n) const {
  std::size_t place = 0;
  for (std::size_t step = std::bit_floor(tree_.size()); step > 0; step /= 2) {
    if (place + step <= tree_.size() && tree_[place + step - 1] <= n) {
      place += step;
      n -= tree_[place - 1];
    }
  }
  return {place, n};
}

}  // namespace tavix
