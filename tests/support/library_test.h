// What every test of the library's exported calls starts from.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/private_folder.h"

namespace tavix::test {

// No instance exists, index 0 is current, and the library's files go to folders of the test's own.
// What a test creates is deleted after it.
class LibraryTest : public testing::Test {
 protected:
  static constexpr int kInstances = 5;

  LibraryTest();
  void TearDown() override;

  static int CurrentIndex();

  // The angle of the current instance's view, in degrees.
  static int Angle();

  [[nodiscard]] std::filesystem::path LegendFile() const { return data_.Path() / L"HANREI.DAT"; }
  // What is written first when the legend is saved.
  [[nodiscard]] std::filesystem::path FileBeside() const { return data_.Path() / L"HANREI.NEW"; }

 private:
  PrivateFolder data_{L"ROVCOND_DATA_FOLDER"};
  PrivateFolder root_{L"CE_DEVICE_ROOT"};
};

// Instance 0 exists, without a window.
class InstanceTest : public LibraryTest {
 protected:
  void SetUp() override;
};

}  // namespace tavix::test
