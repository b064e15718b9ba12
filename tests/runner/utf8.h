// Windows' texts as the report has them.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace tavix::runner {

inline std::string Utf8(std::wstring_view text) {
  const auto length = static_cast<int>(text.size());
  const int size =
      ::WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(size), '\0');
  ::WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), size, nullptr, nullptr);
  return bytes;
}

}  // namespace tavix::runner
