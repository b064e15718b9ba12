// A text on its way out of a C call.
#pragma once

#include <string_view>

namespace tavix_c {

// The caller's buffer of `capacity` characters and the place for the text's length.
struct TextOutput {
  wchar_t* buffer;
  int capacity;
  int* length;

  // A capacity of 0 or less needs no buffer: only the length is asked for.
  [[nodiscard]] bool IsGiven() const { return length && (buffer || capacity <= 0); }

  // Writes the length of the whole text, and as many whole characters of it as fit before a final
  // zero. A surrogate pair is one character.
  void Write(std::wstring_view text) const;
};

}  // namespace tavix_c
