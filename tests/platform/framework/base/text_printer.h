// Shows strings in the messages of failed tests.
#pragma once

#include <afx.h>

#include <filesystem>
#include <ostream>
#include <string>

inline std::string Utf8(LPCWSTR text) {
  const std::u8string bytes = std::filesystem::path(text).u8string();
  return {bytes.begin(), bytes.end()};
}

inline void PrintTo(const CString& text, std::ostream* out) { *out << '"' << Utf8(text) << '"'; }
