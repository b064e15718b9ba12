// Where the library itself is built on the guard heap: what its modules took is guarded, too.
#include <gtest/gtest.h>
#include <tavix/tavix.h>

#include "tests/guard_heap/guard_heap.h"
#include "tests/support/plot_test.h"

namespace tavix::test {
namespace {

class GuardedModules : public PlotTest {};

TEST_F(GuardedModules, AreCounted) {
  const long before = GuardHeapBlocks();
  ASSERT_EQ(0, Tavix_Crt());
  EXPECT_LT(before, GuardHeapBlocks());
}

// A plot window is an object of tavix.dll; a host that keeps it past the end of its instance uses
// memory that is gone.
TEST_F(GuardedModules, AnObjectOfTheLibraryIsGoneWithItsInstance) {
  MakePlot(200, 200);
  CWnd* const volatile window = Tavix_Wnd();
  EXPECT_NE(nullptr, static_cast<volatile CWnd*>(window)->m_hWnd);
  ASSERT_EQ(0, Tavix_Del());
  EXPECT_EXIT(static_cast<void>(static_cast<volatile CWnd*>(window)->m_hWnd),
              testing::ExitedWithCode(static_cast<int>(EXCEPTION_ACCESS_VIOLATION)), "");
}

// The text of a string is a block of framework.dll.
TEST_F(GuardedModules, ATextOfTheFrameworkEndsWithItsTerminator) {
  const CString text(L"legend");
  const auto* const volatile characters = static_cast<const volatile wchar_t*>(text.GetString());
  EXPECT_EQ(L'\0', characters[6]);
  EXPECT_EXIT(static_cast<void>(characters[7]),
              testing::ExitedWithCode(static_cast<int>(EXCEPTION_ACCESS_VIOLATION)), "");
}

}  // namespace
}  // namespace tavix::test
