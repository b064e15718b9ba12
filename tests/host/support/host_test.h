// What the tests of the running host share: a folder of their own and the sample survey.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>

#include "tests/support/project_folder.h"

namespace fieldhost {

class HostTest : public testing::Test {
 protected:
  void SetUp() override {
    const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
    folder_ = std::filesystem::temp_directory_path() / L"fieldhost 現場" /
              (test->name() + std::to_string(::GetCurrentProcessId()));
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
    // The legend file goes there too, not into the user's own folder.
    ::SetEnvironmentVariableW(L"ROVCOND_DATA_FOLDER", folder_.c_str());
  }
  // Where the host is the first program on the desktop, it starts the system's own ones, which keep
  // its output files open: a folder that cannot go yet is left.
  void TearDown() override {
    std::error_code held;
    if (!HasFailure()) std::filesystem::remove_all(folder_, held);
  }

  [[nodiscard]] std::wstring In(const wchar_t* name) const { return (folder_ / name).wstring(); }

  std::wstring Write(const wchar_t* name, std::string_view bytes) const {
    std::ofstream file(folder_ / name, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    EXPECT_TRUE(file.good());
    return In(name);
  }

  static std::wstring Sample(const wchar_t* name) {
    return (tavix::test::ProjectFolder() / L"host\\resources\\sample" / name).wstring();
  }

  std::filesystem::path folder_;
};

}  // namespace fieldhost
