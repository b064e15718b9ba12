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

void OrderedEntries::Insert(Position position, Entry entry) {
  ++version_;
  if (position == End()) {
    // Entries that arrive in order fill each stretch completely.
    const std::size_t stretches = stretches_.size();
    PushBack(entry);
    if (stretches_.size() > stretches) {
      lasts_.emplace_back();
      lengths_.Append();
    }
    lasts_.back() = entry;
    lengths_.Change(stretches_.size() - 1, 1);
    ++size_;
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
  ++size_;
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

void OrderedEntries::Clear() {
  ++version_;
  size_ = 0;
  stretches_ = {};
  lasts_ = {};
  lengths_ = {};
}

void OrderedEntries::PushBack(Entry entry) {
  if (stretches_.empty() || stretches_.back().size() == kMaxStretch) {
    stretches_.emplace_back();
    stretches_.back().reserve(kMaxStretch);
  }
  stretches_.back().push_back(entry);
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
  size_ = 0;
  for (const Stretch& stretch : stretches_) {
    lengths.push_back(stretch.size());
    lasts_.push_back(stretch.back());
    size_ += stretch.size();
  }
  ++version_;
  lengths_.Assign(lengths);
}

}  // namespace tavix
