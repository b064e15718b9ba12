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

// Holds names end to end: one allocation for all in place of one each. A name that is replaced or
// dropped leaves a gap; the owner rewrites the pool when the gaps outweigh the names.
class NamePool {
 public:
  [[nodiscard]] PooledName Add(NameView name);

  // Valid until the next Add, Replace or Clear.
  [[nodiscard]] NameView View(PooledName name) const {
    return NameView(text_).substr(name.offset, name.length);
  }

  // Puts another name in the place of `name`, in the same room when it fits.
  void Replace(PooledName& name, NameView text);

  void Drop(PooledName name) { wasted_ += name.length; }

  [[nodiscard]] bool IsMostlyGaps() const { return wasted_ > kSmall && wasted_ > text_.size() / 2; }

  void Clear();

 private:
  static constexpr std::size_t kSmall = 4096;  // characters not worth a rewrite

  std::u16string text_;
  std::size_t wasted_ = 0;
};

}  // namespace tavix
