// The names of many entities in one block of memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tavix {

// UTF-16 text as the host gives it.
using NameView = std::u16string_view;

// Where a name lies in its pool.
struct PooledName {
  std::uint32_t offset = 0;
  std::uint32_t length = 0;
};

// Holds names end to end: one allocation for all of them. A name that is replaced or dropped leaves
// a gap; the owner rewrites the pool when the gaps outweigh the names.
class NamePool {
 public:
  [[nodiscard]] PooledName Add(NameView name) {
    const PooledName added{static_cast<std::uint32_t>(text_.size()),
                           static_cast<std::uint32_t>(name.size())};
    text_.append(name);
    return added;
  }

  // Valid until the next Add, Replace or Clear.
  [[nodiscard]] NameView View(PooledName name) const {
    return NameView(text_).substr(name.offset, name.length);
  }

  // Gives `name` another text, which overwrites the old one where it fits.
  void Replace(PooledName& name, NameView text) {
    if (text.size() <= name.length) {
      wasted_ += name.length - text.size();
      text_.replace(name.offset, text.size(), text);
      name.length = static_cast<std::uint32_t>(text.size());
      return;
    }
    const PooledName added = Add(text);
    Drop(name);
    name = added;
  }

  void Drop(PooledName name) { wasted_ += name.length; }

  // Makes room for all names of another pool, so that adding them needs no memory.
  void MakeRoomFor(const NamePool& other) { text_.reserve(other.text_.size()); }

  [[nodiscard]] bool IsMostlyGaps() const { return wasted_ > kSmall && wasted_ > text_.size() / 2; }

  void Clear() {
    text_.clear();
    text_.shrink_to_fit();
    wasted_ = 0;
  }

 private:
  static constexpr std::size_t kSmall = 4096;  // characters not worth a rewrite

  std::u16string text_;
  std::size_t wasted_ = 0;
};

}  // namespace tavix
