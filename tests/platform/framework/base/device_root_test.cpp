// Paths with one leading backslash are in the folder that replaces the device's root.
#include <afx.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/platform/framework/base/text_printer.h"
#include "tests/platform/support/environment_variable.h"
#include "tests/platform/support/local_app_data.h"
#include "tests/platform/support/scratch_folder.h"

namespace {

constexpr LPCWSTR kVariable = L"CE_DEVICE_ROOT";

// The root of this process alone.
CString OwnRoot() {
  CString root;
  root.Format(L"%s\\Tavix\\DeviceRoot\\process-%lu", LocalAppData().c_str(), GetCurrentProcessId());
  return root;
}

TEST(DeviceRoot, TakesPathsWithExactlyOneLeadingBackslash) {
  static constexpr struct {
    LPCWSTR path;
    LPCWSTR mapped;
  } kRows[] = {
      {L"\\points.dat", L"C:\\Root\\points.dat"},
      {L"\\Storage Card\\現場\\a", L"C:\\Root\\Storage Card\\現場\\a"},
      {L"\\", L"C:\\Root\\"},
      {L"\\a\\\\b", L"C:\\Root\\a\\\\b"},
      {L"\\\\server\\share\\a", L"\\\\server\\share\\a"},
      {L"\\\\?\\C:\\a", L"\\\\?\\C:\\a"},
      {L"\\\\", L"\\\\"},
      {L"C:\\a", L"C:\\a"},
      {L"C:a", L"C:a"},
      {L"a\\b", L"a\\b"},
      {L"..\\a", L"..\\a"},
      {L"/a", L"/a"},
      {L"", L""},
      {nullptr, L""},
  };
  for (LPCWSTR root : {L"C:\\Root", L"C:\\Root\\", L"C:\\Root\\\\", L"C:\\Root/"}) {
    const EnvironmentVariable variable(kVariable, root);
    for (const auto& row : kRows) EXPECT_EQ(row.mapped, AfxMapDevicePath(row.path));
  }
}

TEST(DeviceRoot, MayBeADrivesRoot) {
  const EnvironmentVariable variable(kVariable, L"C:\\");
  EXPECT_EQ(L"C:\\a", AfxMapDevicePath(L"\\a"));
  EXPECT_EQ(L"C:\\", AfxMapDevicePath(L"\\"));
}

TEST(DeviceRoot, IsReadAnewAtEachMapping) {
  EnvironmentVariable variable(kVariable, L"C:\\First");
  EXPECT_EQ(L"C:\\First\\a", AfxMapDevicePath(L"\\a"));
  variable.Set(L"C:\\Second");
  EXPECT_EQ(L"C:\\Second\\a", AfxMapDevicePath(L"\\a"));
  variable.Set(nullptr);
  EXPECT_EQ(OwnRoot() + L"\\a", AfxMapDevicePath(L"\\a"));
}

TEST(DeviceRoot, MayHaveALongName) {
  const std::wstring root = L"C:\\" + std::wstring(1000, L'x');
  const EnvironmentVariable variable(kVariable, root.c_str());
  EXPECT_EQ(CString(root.c_str()) + L"\\a", AfxMapDevicePath(L"\\a"));
}

TEST(DeviceRoot, ThatBeginsWithOneBackslashIsNoPathOfTheDeviceItself) {
  const EnvironmentVariable variable(kVariable, L"\\Root");
  const CString mapped = AfxMapDevicePath(L"\\a");
  EXPECT_EQ(L":\\Root\\a", mapped.Mid(1)) << "on the present drive";
  EXPECT_EQ(mapped, AfxMapDevicePath(mapped)) << "mapped once and for all";
}

TEST(DeviceRoot, IsAFolderOfTheProcessWhenTheVariableNamesNothing) {
  for (LPCWSTR value : {static_cast<LPCWSTR>(nullptr), L"", L"\\"}) {
    const EnvironmentVariable variable(kVariable, value);
    EXPECT_EQ(OwnRoot() + L"\\a.dat", AfxMapDevicePath(L"\\a.dat"));
    EXPECT_TRUE(std::filesystem::is_directory(OwnRoot().GetString()));
  }
}

TEST(DeviceRoot, OfTheProcessCannotBeRemovedWhileItRuns) {
  const EnvironmentVariable variable(kVariable, nullptr);
  const CString root = AfxMapDevicePath(L"\\");
  EXPECT_FALSE(RemoveDirectoryW(root));
  EXPECT_EQ(static_cast<DWORD>(ERROR_SHARING_VIOLATION), GetLastError());
  CFile file(L"\\a.dat", CFile::modeCreate | CFile::modeWrite);
  EXPECT_EQ(OwnRoot() + L"\\a.dat", file.GetFilePath()) << "what is in it is as in any folder";
  file.Close();
  CFile::Remove(L"\\a.dat");
}

TEST(DeviceRoot, IsWhereEveryCallOfCFileLooks) {
  const ScratchFolder scratch;
  const EnvironmentVariable variable(kVariable, scratch.Path().c_str());
  {
    CFile file(L"\\points.dat", CFile::modeCreate | CFile::modeWrite);
    file.Write("abc", 3);
    EXPECT_EQ((scratch / L"points.dat").c_str(), file.GetFilePath());
    EXPECT_EQ(L"points.dat", file.GetFileName());
  }
  EXPECT_EQ(3U, std::filesystem::file_size(scratch / L"points.dat"));
  CFile::Rename(L"\\points.dat", L"\\old.dat");
  EXPECT_FALSE(std::filesystem::exists(scratch / L"points.dat"));
  EXPECT_TRUE(std::filesystem::exists(scratch / L"old.dat"));
  CFile::Remove(L"\\old.dat");
  EXPECT_TRUE(std::filesystem::is_empty(scratch.Path()));
}

TEST(DeviceRoot, ErrorsNameThePathThatWasAskedFor) {
  const ScratchFolder scratch;
  const EnvironmentVariable variable(kVariable, scratch.Path().c_str());
  CFileException error;
  EXPECT_FALSE(CFile().Open(L"\\missing", CFile::modeRead, &error));
  EXPECT_EQ(L"\\missing", error.m_strFileName);
  EXPECT_FALSE(CFile().Open(L"\\", CFile::modeRead, &error));
}

}  // namespace
