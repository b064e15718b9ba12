// Files on disk: their paths as UTF-8 text, and all of their bytes.
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

// The bytes, or what is wrong with the file and what to do: the end of a sentence that begins with
// its name. One of the two is empty.
struct FileBytes {
  std::string bytes;
  std::string problem;
};

// Refused: anything but a file, and a file that is empty, cannot be read, or is larger than any
// survey.
[[nodiscard]] FileBytes ReadWholeFile(const std::filesystem::path& path);

}  // namespace fieldhost
