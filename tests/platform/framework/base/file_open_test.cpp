// CFile: opening with every flag, and the causes of failures.
#include <afx.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "tests/platform/framework/base/text_printer.h"
#include "tests/platform/framework/base/thrown_cause.h"
#include "tests/platform/support/scratch_folder.h"

namespace {

static_assert(CFile::modeRead == 0x0000 && CFile::modeWrite == 0x0001 &&
              CFile::modeReadWrite == 0x0002 && CFile::shareCompat == 0x0000 &&
              CFile::shareExclusive == 0x0010 && CFile::shareDenyWrite == 0x0020 &&
              CFile::shareDenyRead == 0x0030 && CFile::shareDenyNone == 0x0040 &&
              CFile::modeNoInherit == 0x0080 && CFile::modeCreate == 0x1000 &&
              CFile::modeNoTruncate == 0x2000 && CFile::typeText == 0x4000 &&
              CFile::typeBinary == 0x8000);
static_assert(CFile::begin == 0 && CFile::current == 1 && CFile::end == 2);

std::string ContentsOf(const std::wstring& path) {
  std::ifstream stream(std::filesystem::path(path), std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

void MakeFile(const std::wstring& path, const std::string& contents) {
  std::ofstream(std::filesystem::path(path), std::ios::binary) << contents;
}

class FileOpen : public ::testing::Test {
 protected:
  ScratchFolder scratch_;
  const std::wstring path_ = scratch_ / L"file.dat";
};

TEST_F(FileOpen, FlagsDecideWhatHappensToTheContentsAndWhichCallsWork) {
  static constexpr struct {
    UINT flags;
    bool makes;      // a missing file
    bool truncates;  // an existing one
    bool reads;
    bool writes;
  } kRows[] = {
      {CFile::modeRead, false, false, true, false},
      {CFile::modeWrite, false, false, false, true},
      {CFile::modeReadWrite, false, false, true, true},
      {CFile::modeNoTruncate | CFile::modeReadWrite, false, false, true, true},
      {CFile::modeCreate | CFile::modeRead, true, true, true, false},
      {CFile::modeCreate | CFile::modeWrite, true, true, false, true},
      {CFile::modeCreate | CFile::modeReadWrite, true, true, true, true},
      {CFile::modeCreate | CFile::modeNoTruncate | CFile::modeRead, true, false, true, false},
      {CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite, true, false, false, true},
      {CFile::modeCreate | CFile::modeNoTruncate | CFile::modeReadWrite, true, false, true, true},
      {CFile::typeBinary | CFile::modeReadWrite, false, false, true, true},
      {CFile::typeText | CFile::modeReadWrite, false, false, true, true},
      {CFile::modeNoInherit | CFile::modeReadWrite, false, false, true, true},
  };
  for (const auto& row : kRows) {
    std::filesystem::remove(path_);
    {
      CFile file;
      EXPECT_EQ(row.makes ? TRUE : FALSE, file.Open(path_.c_str(), row.flags)) << row.flags;
    }
    EXPECT_EQ(row.makes, std::filesystem::exists(path_)) << row.flags;

    MakeFile(path_, "1\r\n2");
    CFile file;
    ASSERT_TRUE(file.Open(path_.c_str(), row.flags)) << row.flags;
    EXPECT_EQ(row.truncates ? 0U : 4U, file.GetLength()) << row.flags;
    EXPECT_EQ(0U, file.GetPosition());
    char buffer[8];
    EXPECT_EQ(row.reads ? CFileException::none : CFileException::accessDenied,
              CauseOf([&] { file.Read(buffer, 8); }))
        << row.flags;
    EXPECT_EQ(row.writes ? CFileException::none : CFileException::accessDenied,
              CauseOf([&] { file.Write("\n", 1); }))
        << row.flags;
  }
}

TEST_F(FileOpen, BytesAreNeverTranslated) {
  for (UINT type : {CFile::typeText, CFile::typeBinary}) {
    CFile file(path_.c_str(), CFile::modeCreate | CFile::modeReadWrite | type);
    file.Write("a\nb\r\n\x1A", 6);
    file.Close();
    EXPECT_EQ("a\nb\r\n\x1A", ContentsOf(path_));
  }
}

TEST_F(FileOpen, WritingInTheMiddleKeepsTheRest) {
  MakeFile(path_, "abcdef");
  CFile file(path_.c_str(), CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite);
  file.Write("XY", 2);
  file.Close();
  EXPECT_EQ("XYcdef", ContentsOf(path_));
}

TEST_F(FileOpen, NamesTheCauseOfAFailure) {
  const struct {
    std::wstring path;
    UINT flags;
    int cause;
    LONG os_error;
  } rows[] = {
      {scratch_ / L"missing", CFile::modeRead, CFileException::fileNotFound, ERROR_FILE_NOT_FOUND},
      {scratch_ / L"missing", CFile::modeWrite, CFileException::fileNotFound, ERROR_FILE_NOT_FOUND},
      {scratch_ / L"no folder\\a", CFile::modeRead, CFileException::badPath, ERROR_PATH_NOT_FOUND},
      {scratch_ / L"no folder\\a", CFile::modeCreate | CFile::modeWrite, CFileException::badPath,
       ERROR_PATH_NOT_FOUND},
      {L"", CFile::modeRead, CFileException::badPath, ERROR_PATH_NOT_FOUND},
      {scratch_ / L"a?b", CFile::modeCreate | CFile::modeWrite, CFileException::badPath,
       ERROR_INVALID_NAME},
      {scratch_.Path(), CFile::modeRead, CFileException::accessDenied, ERROR_ACCESS_DENIED},
      {scratch_.Path(), CFile::modeWrite, CFileException::accessDenied, ERROR_ACCESS_DENIED},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(Utf8(row.path.c_str()));
    CFileException error;
    CFile file;
    EXPECT_FALSE(file.Open(row.path.c_str(), row.flags, &error));
    EXPECT_EQ(row.cause, error.m_cause);
    EXPECT_EQ(row.os_error, error.m_lOsError);
    EXPECT_EQ(row.path.c_str(), error.m_strFileName);
    EXPECT_EQ(CFile::hFileNull, file.m_hFile);
    EXPECT_TRUE(file.GetFilePath().IsEmpty());
    EXPECT_FALSE(file.Open(row.path.c_str(), row.flags));  // without `error`

    CFileException thrown;
    EXPECT_EQ(row.cause,
              CauseOf([&] { const CFile opened(row.path.c_str(), row.flags); }, &thrown));
    EXPECT_EQ(row.os_error, thrown.m_lOsError);
    EXPECT_EQ(row.path.c_str(), thrown.m_strFileName);
  }
}

TEST_F(FileOpen, ReadOnlyFileIsNotOpenedForWriting) {
  MakeFile(path_, "x");
  SetFileAttributesW(path_.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(1U, CFile(path_.c_str(), CFile::modeRead).GetLength());
  const HANDLE allowed =
      CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  if (allowed != INVALID_HANDLE_VALUE) {
    CloseHandle(allowed);
    GTEST_SKIP() << "This user may write to read-only files: root, under Wine.";
  }
  for (UINT flags :
       {CFile::modeWrite + 0U, CFile::modeReadWrite + 0U, CFile::modeCreate | CFile::modeWrite}) {
    CFileException error;
    EXPECT_FALSE(CFile().Open(path_.c_str(), flags, &error));
    EXPECT_EQ(CFileException::accessDenied, error.m_cause);
    EXPECT_EQ(ERROR_ACCESS_DENIED, error.m_lOsError);
  }
  EXPECT_EQ("x", ContentsOf(path_));
}

// Wine shows the Linux tree as drive Z; this file there is read-only even for root.
TEST(ReadOnlyFile, RefusesWriters) {
  constexpr LPCWSTR kReadOnly = L"Z:\\sys\\kernel\\uevent_seqnum";
  CFile file;
  if (!file.Open(kReadOnly, CFile::modeRead | CFile::shareDenyNone)) {
    GTEST_SKIP() << "There is no " << Utf8(kReadOnly) << " here.";
  }
  file.Close();
  CFileException error;
  EXPECT_FALSE(file.Open(kReadOnly, CFile::modeWrite | CFile::shareDenyNone, &error));
  EXPECT_EQ(CFileException::accessDenied, error.m_cause);
}

TEST_F(FileOpen, RefusesANullPath) {
  CFileException error;
  EXPECT_FALSE(CFile().Open(nullptr, CFile::modeRead, &error));
  EXPECT_EQ(CFileException::badPath, error.m_cause);
}

TEST_F(FileOpen, SharesAsTheFirstToOpenAllows) {
  static constexpr struct {
    UINT first;
    UINT second;
    bool opens;
  } kRows[] = {
      {CFile::modeRead, CFile::modeRead | CFile::shareDenyNone, false},  // compatible: exclusive
      {CFile::modeRead | CFile::shareExclusive, CFile::modeRead | CFile::shareDenyNone, false},
      {CFile::modeRead | CFile::shareDenyWrite, CFile::modeRead | CFile::shareDenyNone, true},
      {CFile::modeRead | CFile::shareDenyWrite, CFile::modeWrite | CFile::shareDenyNone, false},
      {CFile::modeRead | CFile::shareDenyRead, CFile::modeRead | CFile::shareDenyNone, false},
      {CFile::modeRead | CFile::shareDenyRead, CFile::modeWrite | CFile::shareDenyNone, true},
      {CFile::modeRead | CFile::shareDenyNone, CFile::modeReadWrite | CFile::shareDenyNone, true},
      {CFile::modeRead | CFile::shareDenyNone, CFile::modeRead | CFile::shareExclusive, false},
      {CFile::modeWrite | CFile::shareDenyNone, CFile::modeRead | CFile::shareDenyWrite, false},
      {CFile::modeWrite | CFile::shareDenyNone, CFile::modeRead | CFile::shareDenyRead, true},
  };
  MakeFile(path_, "x");
  for (const auto& row : kRows) {
    CFile first(path_.c_str(), row.first);
    CFile second;
    CFileException error;
    EXPECT_EQ(row.opens ? TRUE : FALSE, second.Open(path_.c_str(), row.second, &error))
        << std::hex << row.first << ", " << row.second;
    EXPECT_EQ(row.opens ? CFileException::none : CFileException::sharingViolation, error.m_cause);
    first.Close();
    EXPECT_TRUE(second.Open(path_.c_str(), row.second));
  }
}

TEST_F(FileOpen, InheritsItsHandleUnlessToldOtherwise) {
  for (UINT flag : {0U, static_cast<UINT>(CFile::modeNoInherit)}) {
    const CFile file(path_.c_str(), CFile::modeCreate | CFile::modeWrite | flag);
    DWORD information = 0;
    ASSERT_TRUE(GetHandleInformation(file, &information));
    EXPECT_EQ(flag == 0, (information & HANDLE_FLAG_INHERIT) != 0);
  }
}

TEST_F(FileOpen, ClosesWhatWasOpenBefore) {
  const std::wstring other = scratch_ / L"other.dat";
  CFile file(path_.c_str(), CFile::modeCreate | CFile::modeWrite | CFile::shareExclusive);
  ASSERT_TRUE(file.Open(other.c_str(), CFile::modeCreate | CFile::modeWrite));
  EXPECT_EQ(other.c_str(), file.GetFilePath());
  const CFile again(path_.c_str(), CFile::modeRead);  // else a sharing violation
  EXPECT_FALSE(file.Open((scratch_ / L"missing").c_str(), CFile::modeRead));
  EXPECT_EQ(CFile::hFileNull, file.m_hFile);
  const CFile released(other.c_str(), CFile::modeRead);
}

TEST_F(FileOpen, FullPathIsKnownOfARelativeOne) {
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(scratch_.Path());
  {
    const CFile file(L".\\x\\..\\file.dat", CFile::modeCreate | CFile::modeWrite);
    EXPECT_EQ(path_.c_str(), file.GetFilePath());
    EXPECT_EQ(L"file.dat", file.GetFileName());
  }
  std::filesystem::current_path(before);
}

}  // namespace
