// Where the files are that tests read.
#pragma once

#include <filesystem>
#include <stdexcept>

namespace tavix::test {

// The project's folder, or an unpacked test package, which has these files at the same places: the
// first folder with tests/cases from the current one upward. CTest and run_tests.cmd start programs
// below it; std::runtime_error where none is.
inline std::filesystem::path ProjectFolder() {
  const std::filesystem::path start = std::filesystem::current_path();
  for (std::filesystem::path folder = start;; folder = folder.parent_path()) {
    if (std::filesystem::exists(folder / "tests" / "cases")) return folder;
    if (!folder.has_relative_path()) break;
  }
  throw std::runtime_error("no folder with tests/cases here or above: start in the project");
}

// Survey data of others, which are no part of the project: beside it, where they are at hand.
inline std::filesystem::path SharedData(const char* name) {
  return ProjectFolder().parent_path() / "shared" / "data" / name;
}

}  // namespace tavix::test
