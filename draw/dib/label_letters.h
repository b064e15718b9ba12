// A label taken apart into the characters that GDI draws one beside the other.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>

#include "store/name_pool.h"

namespace tavix {

// A character as the label has it.
struct Letter {
  char32_t character = 0;
  // An '&' stands before it: DrawText leaves that out and underlines the character, and draws "&&"
  // as one '&'. The '&' that ends a label has none before it and is drawn as it is.
  bool is_prefixed = false;

  [[nodiscard]] bool IsUnderlined() const { return is_prefixed && character != U'&'; }

  // In UTF-16: the character alone, and as a label spells it.
  [[nodiscard]] std::u16string Plain() const;
  [[nodiscard]] std::u16string Spelled() const { return (is_prefixed ? u"&" : u"") + Plain(); }

  friend bool operator==(const Letter&, const Letter&) = default;
};

// The letters of one label.
class LabelLetters {
 public:
  static constexpr std::size_t kLongest = 32;  // UTF-16 units

  // None for a label that is longer, underlines more than one character, or has a character whose
  // place or shape may depend on its neighbours: a control character, half of a surrogate pair, a
  // combining mark, one of a script that joins its characters or runs from right to left.
  static std::optional<LabelLetters> Of(NameView label);

  [[nodiscard]] std::span<const Letter> All() const { return {letters_.data(), count_}; }

 private:
  LabelLetters() = default;

  std::array<Letter, kLongest> letters_;
  std::size_t count_ = 0;
};

}  // namespace tavix
