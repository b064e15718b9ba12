// File paths between UTF-8 text and the system's own form.
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace fieldhost {

inline std::filesystem::path PathOf(std::string_view utf8) {
  return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

inline std::vector<std::filesystem::path> PathsOf(std::span<const std::string> utf8) {
  std::vector<std::filesystem::path> paths;
  for (const std::string& text : utf8) paths.push_back(PathOf(text));
  return paths;
}

inline std::string Utf8Of(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

}  // namespace fieldhost
