// Exceptions across the borders of framework.dll, another DLL and the program, each with a C++
// runtime linked into itself.
#include <afx.h>
#include <gtest/gtest.h>

#include "tests/platform/framework/base/exception_relay.h"

namespace {

constexpr LPCWSTR kMissing = L"C:\\no such folder\\no such file";

TEST(ExceptionBorder, TheProgramCatchesWhatTheFrameworkThrows) {
  try {
    const CFile file(kMissing, CFile::modeRead);
    FAIL() << "nothing was thrown";
  } catch (CFileException* error) {
    EXPECT_EQ(CFileException::badPath, error->m_cause);
    EXPECT_EQ(ERROR_PATH_NOT_FOUND, error->m_lOsError);
    EXPECT_EQ(kMissing, error->m_strFileName);
    error->Delete();
  }
}

TEST(ExceptionBorder, TheProgramCatchesByTheBaseClass) {
  try {
    AfxThrowFileException(CFileException::diskFull);
  } catch (CException* error) {
    EXPECT_TRUE(error->IsKindOf(RUNTIME_CLASS(CFileException)));
    EXPECT_EQ(CFileException::diskFull, static_cast<CFileException*>(error)->m_cause);
    EXPECT_NE(nullptr, dynamic_cast<CFileException*>(error));
    error->Delete();
  }
}

TEST(ExceptionBorder, AnotherClassIsNotCaught) {
  bool passed = false;
  try {
    try {
      AfxThrowMemoryException();
    } catch (CFileException* error) {
      error->Delete();
      FAIL() << "a memory exception was taken for a file exception";
    }
  } catch (CMemoryException* error) {
    passed = true;
    error->Delete();
  }
  EXPECT_TRUE(passed);
}

TEST(ExceptionBorder, PassesThroughAnotherDllAndUnwindsIt) {
  int unwound = 0;
  bool caught = false;
  try {
    RelayOpen(kMissing, &unwound);
  } catch (CFileException* error) {
    caught = true;
    EXPECT_EQ(CFileException::badPath, error->m_cause);
    error->Delete();
  }
  EXPECT_TRUE(caught);
  EXPECT_EQ(1, unwound);
}

TEST(ExceptionBorder, TheProgramsOwnPassesThroughAnotherDll) {
  int unwound = 0;
  bool caught = false;
  try {
    RelayCall([] { throw new CUserException; }, &unwound);
  } catch (CUserException* error) {
    caught = true;
    error->Delete();
  }
  EXPECT_TRUE(caught);
  EXPECT_EQ(1, unwound);
}

TEST(ExceptionBorder, AnotherDllsOwnClassIsCaughtByItsBaseAndDeleted) {
  int destroyed = 0;
  try {
    RelayThrow(&destroyed);
  } catch (CException* error) {
    EXPECT_STREQ("CRelayException", error->GetRuntimeClass()->m_lpszClassName);
    EXPECT_EQ(0, destroyed);
    error->Delete();
  }
  EXPECT_EQ(1, destroyed);
}

TEST(ExceptionBorder, AnotherDllCatchesWhatTheFrameworkAndTheProgramThrow) {
  static constexpr struct {
    void (*call)();
    RelayCaught caught;
  } kRows[] = {
      {[] { const CFile file(kMissing, CFile::modeRead); }, RelayCaught::file},
      {[] { CFile::Remove(kMissing); }, RelayCaught::file},
      {[] { AfxThrowMemoryException(); }, RelayCaught::memory},
      {[] { AfxThrowResourceException(); }, RelayCaught::other},
      {[] { AfxThrowUserException(); }, RelayCaught::other},
      {[] { throw new CMemoryException; }, RelayCaught::memory},
      {[] {}, RelayCaught::nothing},
  };
  for (const auto& row : kRows) EXPECT_EQ(row.caught, RelayCatch(row.call)) << &row - kRows;
}

// A runtime that ran out of room for exceptions in flight would end the program.
TEST(ExceptionBorder, ManyInARowAreNoMoreThanOne) {
  for (int i = 0; i < 10000; ++i) {
    int unwound = 0;
    try {
      RelayOpen(kMissing, &unwound);
    } catch (CFileException* error) {
      error->Delete();
    }
    ASSERT_EQ(1, unwound);
  }
}

}  // namespace
