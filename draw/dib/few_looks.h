// What is learnt of looks, each once.
#pragma once

#include <algorithm>
#include <cstddef>
#include <list>
#include <tuple>
#include <utility>

namespace tavix {

// Marks and fonts that are learnt.
constexpr std::size_t kMostMarks = 256;
constexpr std::size_t kMostFonts = 64;

// Values by key, made when they are first asked for. Beyond `kMost` of them there are none: a host
// that makes looks without end costs no more memory than this, and no time to learn what was
// forgotten.
template <class Key, class Value, std::size_t kMost>
class FewLooks {
 public:
  // The value, or null; it stays where it is until it is removed. `args` are what a new one is made
  // of.
  template <class... Args>
  Value* Get(const Key& key, Args&&... args) {
    const auto same = [&](const auto& look) { return look.first == key; };
    auto found = std::find_if(looks_.begin(), looks_.end(), same);
    if (found != looks_.end()) return &found->second;
    if (looks_.size() >= kMost) return nullptr;
    return &looks_
                .emplace_back(std::piecewise_construct, std::forward_as_tuple(key),
                              std::forward_as_tuple(std::forward<Args>(args)...))
                .second;
  }

  void Remove(const Key& key) {
    looks_.remove_if([&](const auto& look) { return look.first == key; });
  }

  void Clear() { looks_.clear(); }

  // Calls `visit(Value&)` for each.
  template <class Visit>
  void ForEach(Visit visit) {
    for (auto& look : looks_) visit(look.second);
  }

 private:
  std::list<std::pair<Key, Value>> looks_;
};

}  // namespace tavix
