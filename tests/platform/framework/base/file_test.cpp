// CFile: reading, writing, seeking, and closing.
#include <afx.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/platform/framework/base/text_printer.h"
#include "tests/platform/framework/base/thrown_cause.h"
#include "tests/platform/support/scratch_folder.h"

namespace {

constexpr UINT kFresh = CFile::modeCreate | CFile::modeReadWrite;

class File : public ::testing::Test {
 protected:
  ScratchFolder scratch_;
  const std::wstring path_ = scratch_ / L"測量.dat";

  std::string ReadAll(CFile& file) {
    std::string bytes(static_cast<std::size_t>(file.GetLength()), '#');
    file.SeekToBegin();
    EXPECT_EQ(bytes.size(), file.Read(bytes.data(), static_cast<UINT>(bytes.size())));
    return bytes;
  }
};

TEST_F(File, ReadsBackWhatWasWritten) {
  CFile file(path_.c_str(), kFresh);
  std::string all;
  for (int i = 0; i < 100000; ++i) all.push_back(static_cast<char>(i * 7));
  file.Write(all.data(), static_cast<UINT>(all.size()));
  EXPECT_EQ(all.size(), file.GetPosition());
  EXPECT_EQ(all.size(), file.GetLength());
  EXPECT_EQ(all, ReadAll(file));
}

TEST_F(File, ReadsNoFurtherThanTheEnd) {
  CFile file(path_.c_str(), kFresh);
  file.Write("abc", 3);
  char buffer[8] = "#######";
  EXPECT_EQ(0U, file.Read(buffer, 7));
  EXPECT_EQ(1U, file.Seek(1, CFile::begin));
  EXPECT_EQ(2U, file.Read(buffer, 7));
  EXPECT_STREQ("bc#####", buffer);
  EXPECT_EQ(0U, file.Read(buffer, 7));
  EXPECT_EQ(100U, file.Seek(100, CFile::begin));
  EXPECT_EQ(0U, file.Read(buffer, 7));
  EXPECT_EQ(3U, file.GetLength());
}

TEST_F(File, LocksARangeThatMayLieBehindTheEnd) {
  constexpr ULONGLONG kFar = ULONGLONG{1} << 62;
  CFile file(path_.c_str(), kFresh | CFile::shareDenyNone);
  CFile other(path_.c_str(), CFile::modeReadWrite | CFile::shareDenyNone);
  file.LockRange(kFar, 1);
  EXPECT_EQ(CFileException::lockViolation, CauseOf([&] { other.LockRange(kFar, 1); }));
  other.LockRange(kFar + 1, 1);
  other.Write("abc", 3);
  EXPECT_EQ("abc", ReadAll(file));
  file.UnlockRange(kFar, 1);
  other.LockRange(kFar, 1);
  EXPECT_NE(CauseOf([&] { file.UnlockRange(kFar, 1); }), CFileException::none);
  other.Close();
  file.LockRange(kFar, 2);
}

TEST_F(File, NoBytesAreNoCall) {
  CFile file(path_.c_str(), CFile::modeCreate | CFile::modeRead);
  EXPECT_EQ(0U, file.Read(nullptr, 0));
  file.Write(nullptr, 0);
  EXPECT_EQ(0U, file.GetLength());
}

TEST_F(File, SeeksFromThreePlaces) {
  static constexpr struct {
    LONGLONG offset;
    UINT from;
    ULONGLONG place;
  } kRows[] = {
      {0, CFile::begin, 0},
      {4, CFile::begin, 4},
      {10, CFile::begin, 10},
      {0, CFile::current, 5},
      {3, CFile::current, 8},
      {-5, CFile::current, 0},
      {0, CFile::end, 10},
      {-10, CFile::end, 0},
      {-1, CFile::end, 9},
      {5, CFile::end, 15},
      {5000000000, CFile::begin, 5000000000},
  };
  CFile file(path_.c_str(), kFresh);
  file.Write("0123456789", 10);
  for (const auto& row : kRows) {
    file.Seek(5, CFile::begin);
    EXPECT_EQ(row.place, file.Seek(row.offset, row.from));
    EXPECT_EQ(row.place, file.GetPosition());
  }
  file.SeekToBegin();
  EXPECT_EQ(0U, file.GetPosition());
  EXPECT_EQ(10U, file.SeekToEnd());
  EXPECT_EQ(10U, file.GetLength());
}

TEST_F(File, RefusesToSeekBeforeTheBeginning) {
  static constexpr struct {
    LONGLONG offset;
    UINT from;
  } kRows[] = {{-1, CFile::begin}, {-6, CFile::current}, {-11, CFile::end}};
  CFile file(path_.c_str(), kFresh);
  file.Write("0123456789", 10);
  for (const auto& row : kRows) {
    file.Seek(5, CFile::begin);
    CFileException error;
    EXPECT_EQ(CFileException::badSeek, CauseOf([&] { file.Seek(row.offset, row.from); }, &error));
    EXPECT_EQ(ERROR_NEGATIVE_SEEK, error.m_lOsError);
    EXPECT_EQ(path_.c_str(), error.m_strFileName);
    EXPECT_EQ(5U, file.GetPosition());
  }
}

TEST_F(File, WritingBehindTheEndFillsTheGapWithZeros) {
  CFile file(path_.c_str(), kFresh);
  file.Seek(3, CFile::begin);
  file.Write("x", 1);
  EXPECT_EQ(std::string("\0\0\0x", 4), ReadAll(file));
}

TEST_F(File, SetsItsLength) {
  CFile file(path_.c_str(), kFresh);
  file.Write("0123456789", 10);
  file.SetLength(4);
  EXPECT_EQ(4U, file.GetLength());
  EXPECT_EQ("0123", ReadAll(file));
  file.SetLength(6);
  EXPECT_EQ(std::string("0123\0\0", 6), ReadAll(file));
  file.SetLength(0);
  EXPECT_EQ(0U, file.GetLength());
  EXPECT_EQ(CFileException::badSeek, CauseOf([&] { file.SetLength(~0ULL); }));
}

TEST_F(File, LengthOfAFileOpenForReadingStays) {
  {
    CFile file(path_.c_str(), kFresh);
    file.Write("0123456789", 10);
  }
  CFile file(path_.c_str(), CFile::modeRead);
  EXPECT_NE(CauseOf([&] { file.SetLength(4); }), CFileException::none);
  EXPECT_EQ(10U, file.GetLength());
}

TEST_F(File, ContentsAreThereForOthersAfterFlush) {
  CFile file(path_.c_str(), kFresh | CFile::shareDenyNone);
  file.Write("abc", 3);
  file.Flush();
  CFile reader(path_.c_str(), CFile::modeRead | CFile::shareDenyNone);
  EXPECT_EQ("abc", ReadAll(reader));
}

TEST_F(File, ThatIsNotOpenRefusesEveryCall) {
  CFile file;
  char buffer[4];
  EXPECT_EQ(CFileException::invalidFile, CauseOf([&] { file.Read(buffer, 4); }));
  EXPECT_EQ(CFileException::invalidFile, CauseOf([&] { file.Write(buffer, 4); }));
  EXPECT_EQ(CFileException::invalidFile, CauseOf([&] { file.Seek(0, CFile::begin); }));
  EXPECT_EQ(CFileException::invalidFile, CauseOf([&] { file.SeekToEnd(); }));
  EXPECT_EQ(CFileException::invalidFile, CauseOf([&] { file.GetPosition(); }));
  EXPECT_EQ(CFileException::invalidFile, CauseOf([&] { file.GetLength(); }));
  EXPECT_EQ(CFileException::invalidFile, CauseOf([&] { file.SetLength(1); }));
  file.Flush();
  file.Close();
  file.Abort();
  EXPECT_TRUE(file.GetFilePath().IsEmpty());
  EXPECT_TRUE(file.GetFileName().IsEmpty());
}

TEST_F(File, IsClosedOnceAndOpensAgain) {
  CFile file(path_.c_str(), kFresh);
  file.Write("abc", 3);
  file.Close();
  EXPECT_EQ(CFile::hFileNull, file.m_hFile);
  EXPECT_TRUE(file.GetFilePath().IsEmpty());
  file.Close();
  file.Abort();
  ASSERT_TRUE(file.Open(path_.c_str(), CFile::modeRead));
  EXPECT_EQ("abc", ReadAll(file));
  file.Abort();
  EXPECT_EQ(CFile::hFileNull, file.m_hFile);
  CFile::Remove(path_.c_str());  // no handle is open
}

TEST_F(File, IsClosedByItsDestructor) {
  {
    CFile file(path_.c_str(), kFresh);
    file.Write("abc", 3);
  }
  CFile file(path_.c_str(), CFile::modeReadWrite | CFile::shareExclusive);
  EXPECT_EQ(3U, file.GetLength());
}

TEST_F(File, TakesAndClosesAHandle) {
  const HANDLE handle = CreateFileW(path_.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                    CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(INVALID_HANDLE_VALUE, handle);
  {
    CFile file(handle);
    EXPECT_EQ(static_cast<HANDLE>(file), handle);
    file.Write("abc", 3);
    EXPECT_EQ(3U, file.GetLength());
    EXPECT_TRUE(file.GetFilePath().IsEmpty());
  }
  const CFile again(path_.c_str(), CFile::modeRead | CFile::shareExclusive);
}

// Wine shows the Linux tree as drive Z; the device that is always full replaces a full disk.
TEST(FullDisk, IsToldByWrite) {
  constexpr LPCWSTR kFull = L"Z:\\dev\\full";
  CFile file;
  if (!file.Open(kFull, CFile::modeWrite | CFile::shareDenyNone)) {
    GTEST_SKIP() << "There is no " << Utf8(kFull) << " here.";
  }
  CFileException error;
  const std::string bytes(100000, 'x');
  EXPECT_EQ(CFileException::diskFull,
            CauseOf([&] { file.Write(bytes.data(), static_cast<UINT>(bytes.size())); }, &error));
  EXPECT_EQ(ERROR_DISK_FULL, error.m_lOsError);
  EXPECT_EQ(kFull, error.m_strFileName);
  file.Close();
}

}  // namespace
