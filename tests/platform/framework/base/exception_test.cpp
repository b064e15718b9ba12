// Exceptions: causes, error codes, messages.
#include <afx.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <string>

#include "tests/platform/framework/base/text_printer.h"

namespace {

TEST(FileException, CausesHaveTheirUsualNumbers) {
  static constexpr int kInOrder[] = {CFileException::none,
                                     CFileException::genericException,
                                     CFileException::fileNotFound,
                                     CFileException::badPath,
                                     CFileException::tooManyOpenFiles,
                                     CFileException::accessDenied,
                                     CFileException::invalidFile,
                                     CFileException::removeCurrentDir,
                                     CFileException::directoryFull,
                                     CFileException::badSeek,
                                     CFileException::hardIO,
                                     CFileException::sharingViolation,
                                     CFileException::lockViolation,
                                     CFileException::diskFull,
                                     CFileException::endOfFile};
  for (int i = 0; i < static_cast<int>(std::size(kInOrder)); ++i) EXPECT_EQ(i, kInOrder[i]);
}

TEST(FileException, TellsTheCauseOfASystemError) {
  static constexpr struct {
    LONG os_error;
    int cause;
  } kRows[] = {
      {NO_ERROR, CFileException::none},
      {ERROR_FILE_NOT_FOUND, CFileException::fileNotFound},
      {ERROR_PATH_NOT_FOUND, CFileException::badPath},
      {ERROR_INVALID_NAME, CFileException::badPath},
      {ERROR_TOO_MANY_OPEN_FILES, CFileException::tooManyOpenFiles},
      {ERROR_ACCESS_DENIED, CFileException::accessDenied},
      {ERROR_WRITE_PROTECT, CFileException::accessDenied},
      {ERROR_INVALID_HANDLE, CFileException::invalidFile},
      {ERROR_CURRENT_DIRECTORY, CFileException::removeCurrentDir},
      {ERROR_CANNOT_MAKE, CFileException::directoryFull},
      {ERROR_NEGATIVE_SEEK, CFileException::badSeek},
      {ERROR_CRC, CFileException::hardIO},
      {ERROR_SHARING_VIOLATION, CFileException::sharingViolation},
      {ERROR_LOCK_VIOLATION, CFileException::lockViolation},
      {ERROR_DISK_FULL, CFileException::diskFull},
      {ERROR_HANDLE_DISK_FULL, CFileException::diskFull},
      {ERROR_HANDLE_EOF, CFileException::endOfFile},
      {ERROR_INVALID_PARAMETER, CFileException::genericException},
      {-1, CFileException::genericException},
      {0x7FFFFFFF, CFileException::genericException},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(row.cause, CFileException::OsErrorToException(row.os_error)) << row.os_error;
    try {
      CFileException::ThrowOsError(row.os_error, L"name");
    } catch (CFileException* error) {
      EXPECT_EQ(row.cause, error->m_cause);
      EXPECT_EQ(row.os_error, error->m_lOsError);
      EXPECT_EQ(L"name", error->m_strFileName);
      error->Delete();
    }
  }
}

TEST(FileException, IsWithoutCauseAtFirst) {
  const CFileException error;
  EXPECT_EQ(CFileException::none, error.m_cause);
  EXPECT_EQ(-1, error.m_lOsError);
  EXPECT_TRUE(error.m_strFileName.IsEmpty());
}

TEST(FileException, IsThrownWithAllThatIsKnown) {
  try {
    AfxThrowFileException(CFileException::endOfFile, ERROR_HANDLE_EOF, L"点.dat");
  } catch (CFileException* error) {
    EXPECT_EQ(CFileException::endOfFile, error->m_cause);
    EXPECT_EQ(ERROR_HANDLE_EOF, error->m_lOsError);
    EXPECT_EQ(L"点.dat", error->m_strFileName);
    error->Delete();
  }
}

// The message is truncated to a buffer of any size, and nothing is written beyond it.
void ExpectMessage(const CException& error) {
  WCHAR whole[256];
  ASSERT_TRUE(error.GetErrorMessage(whole, 256));
  ASSERT_GT(std::wstring(whole).size(), 5U);
  for (UINT room : {1U, 2U, 5U}) {
    WCHAR part[8];
    std::fill(std::begin(part), std::end(part), L'#');
    EXPECT_TRUE(error.GetErrorMessage(part, room));
    EXPECT_EQ(std::wstring(whole).substr(0, room - 1), part);
    EXPECT_EQ(L'#', part[room]);
  }
  WCHAR none = L'#';
  EXPECT_FALSE(error.GetErrorMessage(&none, 0));
  EXPECT_EQ(L'#', none);
}

TEST(ExceptionMessage, IsCutToTheBuffer) {
  auto* const memory = new CMemoryException;
  ExpectMessage(*memory);
  memory->Delete();
  auto* const resource = new CResourceException;
  ExpectMessage(*resource);
  resource->Delete();
  ExpectMessage(CFileException(CFileException::fileNotFound, ERROR_FILE_NOT_FOUND));
}

TEST(ExceptionMessage, IsAnotherOneForEachCauseEvenWithoutAnErrorCode) {
  std::set<std::wstring> messages;
  for (int cause = CFileException::none; cause <= CFileException::endOfFile; ++cause) {
    ExpectMessage(CFileException(cause));
    WCHAR text[256];
    CFileException(cause).GetErrorMessage(text, 256);
    messages.insert(text);
    EXPECT_EQ(std::wstring::npos, std::wstring(text).find_first_of(L"\r\n"));
  }
  EXPECT_EQ(15U, messages.size());
  for (int unknown : {-1, 15, 99999}) {
    WCHAR text[256];
    ASSERT_TRUE(CFileException(unknown).GetErrorMessage(text, 256));
    EXPECT_EQ(1U, messages.count(text));  // the generic one
  }
}

TEST(ExceptionMessage, IsMissingForTheUsersOwnDecision) {
  auto* const user = new CUserException;
  WCHAR text[8] = L"before";
  EXPECT_FALSE(user->GetErrorMessage(text, 8));
  EXPECT_STREQ(L"", text);
  user->Delete();
}

}  // namespace
