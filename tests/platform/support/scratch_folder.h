// A folder for one test, created empty and removed at the end.
#pragma once

#include <windows.h>

#include <filesystem>
#include <string>

class ScratchFolder {
 public:
  ScratchFolder() {
    static int count = 0;
    path_ = std::filesystem::temp_directory_path() /
            ("tavix_test_" + std::to_string(GetCurrentProcessId()) + "_" + std::to_string(count++));
    std::filesystem::create_directories(path_);
  }
  ~ScratchFolder() {
    std::error_code ignored;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path_, ignored)) {
      SetFileAttributesW(entry.path().c_str(), FILE_ATTRIBUTE_NORMAL);
    }
    std::filesystem::remove_all(path_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  [[nodiscard]] std::wstring Path() const { return path_.wstring(); }
  // The path of something inside.
  [[nodiscard]] std::wstring operator/(const std::wstring& name) const {
    return Path() + L"\\" + name;
  }

 private:
  std::filesystem::path path_;
};
