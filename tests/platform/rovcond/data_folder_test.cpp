// GetDataFolder: which folder it returns, and what it does when the path does not fit.
#include <gtest/gtest.h>
#include <rovcond.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <string>

#include "tests/platform/support/environment_variable.h"
#include "tests/platform/support/local_app_data.h"
#include "tests/platform/support/scratch_folder.h"

namespace {

constexpr LPCWSTR kVariable = L"ROVCOND_DATA_FOLDER";
constexpr WCHAR kUntouched = L'\xBEEF';

// A buffer of the promised size with a guard behind it.
struct Answer {
  Answer() {
    std::fill(std::begin(buffer), std::end(buffer), kUntouched);
    found = GetDataFolder(buffer);
  }
  [[nodiscard]] std::wstring Folder() const { return buffer; }
  [[nodiscard]] bool KeptToItsRoom() const { return buffer[MAX_PATH] == kUntouched; }

  WCHAR buffer[MAX_PATH + 1];
  BOOL found;
};

std::wstring LocalData() { return LocalAppData() + L"\\Tavix\\Data"; }

TEST(DataFolder, IsTheOneThatTheVariableNamesWithoutClosingBackslashes) {
  static constexpr struct {
    LPCWSTR value;
    LPCWSTR folder;
  } kRows[] = {
      {L"C:\\Jobs", L"C:\\Jobs"},
      {L"C:\\Jobs\\", L"C:\\Jobs"},
      {L"C:\\Jobs\\\\", L"C:\\Jobs"},
      {L"C:\\Jobs/", L"C:\\Jobs"},
      {L"C:\\", L"C:"},
      {L"C:", L"C:"},
      {L"\\Storage Card\\現場\\", L"\\Storage Card\\現場"},
      {L"\\\\server\\jobs\\", L"\\\\server\\jobs"},
      {L"x", L"x"},
  };
  for (const auto& row : kRows) {
    const EnvironmentVariable variable(kVariable, row.value);
    const Answer answer;
    EXPECT_TRUE(answer.found) << std::filesystem::path(row.value);
    EXPECT_EQ(row.folder, answer.Folder());
    EXPECT_TRUE(answer.KeptToItsRoom());
  }
}

TEST(DataFolder, IsReadAnewAtEachCall) {
  EnvironmentVariable variable(kVariable, L"C:\\First");
  EXPECT_EQ(L"C:\\First", Answer().Folder());
  variable.Set(L"C:\\Second");
  EXPECT_EQ(L"C:\\Second", Answer().Folder());
}

TEST(DataFolder, NamedByTheVariableIsNotMade) {
  const ScratchFolder scratch;
  const std::wstring missing = scratch / L"missing";
  const EnvironmentVariable variable(kVariable, missing.c_str());
  EXPECT_EQ(missing, Answer().Folder());
  EXPECT_FALSE(std::filesystem::exists(missing));
}

TEST(DataFolder, LiesInTheLocalDataWhenTheVariableNamesNothing) {
  for (LPCWSTR value : {static_cast<LPCWSTR>(nullptr), L"", L"\\", L"\\\\"}) {
    // One with something in it is somebody's own, and shows that nothing is done to it.
    std::error_code in_use;
    std::filesystem::remove(LocalData(), in_use);
    const EnvironmentVariable variable(kVariable, value);
    const Answer answer;
    EXPECT_TRUE(answer.found);
    EXPECT_EQ(LocalData(), answer.Folder());
    EXPECT_TRUE(std::filesystem::is_directory(LocalData()));
    EXPECT_TRUE(answer.KeptToItsRoom());
  }
}

TEST(DataFolder, ThatDoesNotFitIsRefusedWithAnEmptyString) {
  static constexpr struct {
    std::size_t length;
    std::size_t backslashes;
    bool fits;
  } kRows[] = {
      {MAX_PATH - 2, 0, true}, {MAX_PATH - 1, 0, true}, {MAX_PATH - 1, 1, true},
      {MAX_PATH, 0, false},    {MAX_PATH, 1, false},    {5000, 0, false},
  };
  for (const auto& row : kRows) {
    const std::wstring folder = L"C:\\" + std::wstring(row.length - 3, L'x');
    const std::wstring value = folder + std::wstring(row.backslashes, L'\\');
    const EnvironmentVariable variable(kVariable, value.c_str());
    const Answer answer;
    EXPECT_EQ(row.fits ? TRUE : FALSE, answer.found) << row.length;
    EXPECT_EQ(row.fits ? folder : std::wstring(), answer.Folder());
    EXPECT_TRUE(answer.KeptToItsRoom());
  }
}

}  // namespace
