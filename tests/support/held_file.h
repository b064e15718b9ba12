// A file that another program has open.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>

namespace tavix::test {

// Open with this access and sharing for as long as the object lives.
class HeldFile {
 public:
  HeldFile(const std::filesystem::path& file, DWORD access, DWORD sharing)
      : handle_(::CreateFileW(file.c_str(), access, sharing, nullptr, OPEN_EXISTING, 0, nullptr)) {
    EXPECT_NE(INVALID_HANDLE_VALUE, handle_) << file;
  }
  ~HeldFile() { ::CloseHandle(handle_); }
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;

 private:
  HANDLE handle_;
};

}  // namespace tavix::test
