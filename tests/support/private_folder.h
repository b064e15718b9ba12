// A folder of a test's own that an environment variable names.
#pragma once

#include <filesystem>
#include <string>

namespace tavix::test {

// Makes an empty folder and has `variable` name it; the destructor puts the old value back and
// removes the folder with all that is in it, read-only files too.
class PrivateFolder {
 public:
  explicit PrivateFolder(const wchar_t* variable);
  ~PrivateFolder();
  PrivateFolder(const PrivateFolder&) = delete;
  PrivateFolder& operator=(const PrivateFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

 private:
  std::wstring variable_;
  std::wstring old_value_;
  std::filesystem::path path_;
};

}  // namespace tavix::test
