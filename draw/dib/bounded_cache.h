// A cache with a limit.
#pragma once

#include <algorithm>
#include <cstddef>
#include <list>
#include <utility>

namespace tavix {

// The most marks, pens and fonts whose shapes are probed and kept.
constexpr std::size_t kMostMarks = 256;
constexpr std::size_t kMostPens = 64;
constexpr std::size_t kMostFonts = 64;

// Values by key, made when they are first asked for. Once there are `kMost` of them no more are
// made, until some have not been asked for in many redraws: a host that uses new symbols without
// end costs no more memory than this, and windows that draw in turn do not make the same values
// again and again.
template <class Key, class Value, std::size_t kMost>
class BoundedCache {
 public:
  // To be called before a redraw: makes room when the cache is full, or `wants_room`.
  void BeginRedraw(bool wants_room = false) {
    ++redraws_;
    if (!wants_room && entries_.size() < kMost) return;
    entries_.remove_if([&](const Entry& entry) { return entry.asked_in + kRedraws < redraws_; });
  }

  // How often BeginRedraw has been called.
  [[nodiscard]] std::size_t Redraws() const { return redraws_; }

  // The value, or null when the cache is full; it stays where it is until it is removed or a redraw
  // begins. A new one is constructed from `args`.
  template <class... Args>
  Value* Get(const Key& key, Args&&... args) {
    const auto same = [&](const Entry& entry) { return entry.key == key; };
    auto found = std::find_if(entries_.begin(), entries_.end(), same);
    if (found == entries_.end()) {
      if (entries_.size() >= kMost) return nullptr;
      found = entries_.emplace(entries_.end(), key, std::forward<Args>(args)...);
    }
    found->asked_in = redraws_;
    return &found->value;
  }

  void Remove(const Key& key) {
    entries_.remove_if([&](const Entry& entry) { return entry.key == key; });
  }

  void Clear() { entries_.clear(); }

 private:
  static constexpr std::size_t kRedraws = 16;  // without a question, before a value makes room

  struct Entry {
    template <class... Args>
    explicit Entry(const Key& of, Args&&... args) : key(of), value(std::forward<Args>(args)...) {}

    Key key;
    Value value;
    std::size_t asked_in = 0;  // the last redraw that asked for it
  };

  std::list<Entry> entries_;
  std::size_t redraws_ = 0;
};

}  // namespace tavix
