// A cache with a limit.
#pragma once

#include <algorithm>
#include <cstddef>
#include <list>
#include <tuple>
#include <utility>

namespace tavix {

// The most marks and fonts that are probed and kept.
constexpr std::size_t kMostMarks = 256;
constexpr std::size_t kMostFonts = 64;

// Values by key, made when they are first asked for. Once there are `kMost` of them no more are
// made: a host that uses new symbols without end costs no more memory than this, and no time to
// make again what was dropped.
template <class Key, class Value, std::size_t kMost>
class BoundedCache {
 public:
  // The value, or null when the cache is full; it stays where it is until it is removed. A new one
  // is constructed from `args`.
  template <class... Args>
  Value* Get(const Key& key, Args&&... args) {
    const auto same = [&](const auto& entry) { return entry.first == key; };
    auto found = std::find_if(entries_.begin(), entries_.end(), same);
    if (found != entries_.end()) return &found->second;
    if (entries_.size() >= kMost) return nullptr;
    return &entries_
                .emplace_back(std::piecewise_construct, std::forward_as_tuple(key),
                              std::forward_as_tuple(std::forward<Args>(args)...))
                .second;
  }

  void Remove(const Key& key) {
    entries_.remove_if([&](const auto& entry) { return entry.first == key; });
  }

  void Clear() { entries_.clear(); }

  // Calls `visit(Value&)` for each.
  template <class Visit>
  void ForEach(Visit visit) {
    for (auto& entry : entries_) visit(entry.second);
  }

 private:
  std::list<std::pair<Key, Value>> entries_;
};

}  // namespace tavix
