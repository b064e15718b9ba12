// UTF-16 text between the portable stores (char16_t) and the system's calls (wchar_t).
#pragma once

#include <cstddef>
#include <string_view>

namespace tavix {

// The two types hold the same UTF-16 units here; only the name of the type differs.
static_assert(sizeof(wchar_t) == sizeof(char16_t));

inline const wchar_t* AsWide(const char16_t* text) {
  return reinterpret_cast<const wchar_t*>(text);
}

inline std::u16string_view AsUtf16(const wchar_t* text, std::size_t length) {
  return {reinterpret_cast<const char16_t*>(text), length};
}

}  // namespace tavix
