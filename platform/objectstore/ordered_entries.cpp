#include "platform/objectstore/ordered_entries.h"

#include <bit>
#include <iterator>

namespace tavix {
namespace {

std::size_t LowBit(std::size_t n) { return n & (~n + 1); }

}  // namespace

// ---- PrefixCounts

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

// ---- OrderedEntries

OrderedEntries::Position OrderedEntries::AtIndex(std::size_t index) const {
  if (index >= size_) return End();
  const PrefixCounts::Found found = lengths_.Find(index);
  return {found.place, found.rest};
}

void OrderedEntries::Insert(Position position, const OrderedEntry& entry) {
  ++version_;
  ++size_;
  if (position == End()) {
    // Entries that arrive in order fill each stretch completely.
    if (stretches_.empty() || stretches_.back().size() == kMaxStretch) {
      stretches_.emplace_back();
      stretches_.back().reserve(kMaxStretch);
      lasts_.emplace_back();
      lengths_.Append();
    }
    stretches_.back().push_back(entry);
    lasts_.back() = entry;
    lengths_.Change(stretches_.size() - 1, 1);
    return;
  }
  if (stretches_[position.stretch].size() == kMaxStretch) {
    Split(position.stretch);
    const std::size_t half = stretches_[position.stretch].size();
    if (position.offset > half) position = {position.stretch + 1, position.offset - half};
  }
  Stretch& stretch = stretches_[position.stretch];
  stretch.insert(stretch.begin() + static_cast<std::ptrdiff_t>(position.offset), entry);
  lasts_[position.stretch] = stretch.back();
  lengths_.Change(position.stretch, 1);
}

void OrderedEntries::Erase(Position position) {
  ++version_;
  --size_;
  Stretch& stretch = stretches_[position.stretch];
  stretch.erase(stretch.begin() + static_cast<std::ptrdiff_t>(position.offset));
  if (!stretch.empty()) {
    lasts_[position.stretch] = stretch.back();
    lengths_.Change(position.stretch, -1);
    return;
  }
  stretches_.erase(stretches_.begin() + static_cast<std::ptrdiff_t>(position.stretch));
  TallyStretches();
}

void OrderedEntries::Assign(const std::vector<OrderedEntry>& sorted) {
  ++version_;
  size_ = sorted.size();
  stretches_.clear();
  // Three quarters full, to leave room for later insertions.
  constexpr std::size_t kFill = kMaxStretch - kMaxStretch / 4;
  for (std::size_t from = 0; from < sorted.size(); from += kFill) {
    const std::size_t to = std::min(from + kFill, sorted.size());
    Stretch& stretch = stretches_.emplace_back();
    stretch.reserve(kMaxStretch);
    stretch.assign(sorted.begin() + static_cast<std::ptrdiff_t>(from),
                   sorted.begin() + static_cast<std::ptrdiff_t>(to));
  }
  TallyStretches();
}

void OrderedEntries::AppendTo(std::vector<OrderedEntry>& out) const {
  for (const Stretch& stretch : stretches_) out.insert(out.end(), stretch.begin(), stretch.end());
}

void OrderedEntries::Split(std::size_t stretch) {
  Stretch upper;
  upper.reserve(kMaxStretch);
  Stretch& lower = stretches_[stretch];
  const auto middle = lower.begin() + static_cast<std::ptrdiff_t>(lower.size() / 2);
  upper.assign(middle, lower.end());
  lower.erase(middle, lower.end());
  stretches_.insert(stretches_.begin() + static_cast<std::ptrdiff_t>(stretch) + 1,
                    std::move(upper));
  TallyStretches();
}

void OrderedEntries::TallyStretches() {
  std::vector<std::size_t> lengths;
  lengths.reserve(stretches_.size());
  lasts_.clear();
  for (const Stretch& stretch : stretches_) {
    lengths.push_back(stretch.size());
    lasts_.push_back(stretch.back());
  }
  lengths_.Assign(lengths);
}

}  // namespace tavix
