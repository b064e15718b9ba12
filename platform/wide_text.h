// Converts UTF-16 text between the portable stores (char16_t) and Windows calls (wchar_t).
#pragma once

#include <cstddef>
#include <string_view>

namespace tavix {

// Both types hold UTF-16 units on Windows; only the types differ.
static_assert(sizeof(wchar_t) == sizeof(char16_t));

inline const wchar_t* AsWide(const char16_t* text) {
  return reinterpret_cast<const wchar_t*>(text);
}

inline std::u16string_view AsUtf16(const wchar_t* text, std::size_t length) {
  return {reinterpret_cast<const char16_t*>(text), length};
}

}  // namespace tavix
