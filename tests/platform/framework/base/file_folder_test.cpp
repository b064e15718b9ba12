// CFile::Rename and CFile::Remove.
#include <afx.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/platform/framework/base/text_printer.h"
#include "tests/platform/framework/base/thrown_cause.h"
#include "tests/platform/support/scratch_folder.h"

namespace {

class FileInFolder : public ::testing::Test {
 protected:
  void Make(const std::wstring& path) {
    CFile(path.c_str(), CFile::modeCreate | CFile::modeWrite).Write("abc", 3);
  }
  int CauseOfRename(const std::wstring& from, const std::wstring& to) {
    return CauseOf([&] { CFile::Rename(from.c_str(), to.c_str()); }, &error_);
  }
  int CauseOfRemove(const std::wstring& path) {
    return CauseOf([&] { CFile::Remove(path.c_str()); }, &error_);
  }

  ScratchFolder scratch_;
  const std::wstring a_ = scratch_ / L"a";
  const std::wstring b_ = scratch_ / L"b";
  CFileException error_;
};

TEST_F(FileInFolder, IsRenamed) {
  Make(a_);
  CFile::Rename(a_.c_str(), b_.c_str());
  EXPECT_FALSE(std::filesystem::exists(a_));
  EXPECT_EQ(3U, std::filesystem::file_size(b_));
}

TEST_F(FileInFolder, IsNotRenamedOverAnother) {
  Make(a_);
  Make(b_);
  EXPECT_EQ(CFileException::accessDenied, CauseOfRename(a_, b_));
  EXPECT_EQ(ERROR_ALREADY_EXISTS, error_.m_lOsError);
  EXPECT_EQ(a_.c_str(), error_.m_strFileName);
  EXPECT_TRUE(std::filesystem::exists(a_));
  EXPECT_TRUE(std::filesystem::exists(b_));
}

TEST_F(FileInFolder, ThatIsMissingIsNeitherRenamedNorRemoved) {
  EXPECT_EQ(CFileException::fileNotFound, CauseOfRename(a_, b_));
  EXPECT_EQ(CFileException::fileNotFound, CauseOfRemove(a_));
  EXPECT_EQ(ERROR_FILE_NOT_FOUND, error_.m_lOsError);
  EXPECT_EQ(a_.c_str(), error_.m_strFileName);
  EXPECT_EQ(CFileException::badPath, CauseOfRemove(scratch_ / L"no folder\\a"));
  Make(a_);
  EXPECT_EQ(CFileException::badPath, CauseOfRename(a_, scratch_ / L"no folder\\a"));
  EXPECT_TRUE(std::filesystem::exists(a_));
}

TEST_F(FileInFolder, IsRemoved) {
  Make(a_);
  CFile::Remove(a_.c_str());
  EXPECT_FALSE(std::filesystem::exists(a_));
}

TEST_F(FileInFolder, StaysWhenItIsReadOnlyOpenOrAFolder) {
  Make(a_);
  SetFileAttributesW(a_.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(CFileException::accessDenied, CauseOfRemove(a_));
  EXPECT_TRUE(std::filesystem::exists(a_));
  {
    const CFile open(b_.c_str(), CFile::modeCreate | CFile::modeWrite);
    EXPECT_EQ(CFileException::sharingViolation, CauseOfRemove(b_));
    EXPECT_EQ(CFileException::sharingViolation, CauseOfRename(b_, scratch_ / L"c"));
  }
  EXPECT_TRUE(std::filesystem::exists(b_));
  std::filesystem::create_directory(scratch_ / L"folder");
  EXPECT_EQ(CFileException::accessDenied, CauseOfRemove(scratch_ / L"folder"));
  EXPECT_TRUE(std::filesystem::exists(scratch_ / L"folder"));
}

}  // namespace
