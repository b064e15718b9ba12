// A whole file in memory.
#pragma once

#include <filesystem>
#include <string>

namespace fieldhost {

// The bytes, or what is wrong with the file and what to do: the end of a sentence that begins with
// its name. One of the two is empty.
struct FileBytes {
  std::string bytes;
  std::string problem;
};

// Refused: what is no file, is empty, cannot be read, or is larger than any survey.
[[nodiscard]] FileBytes ReadWholeFile(const std::filesystem::path& path);

}  // namespace fieldhost
