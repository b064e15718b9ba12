// Test programs that go wrong on purpose: what the runner reports of them is checked.
#include <gtest/gtest.h>

#include <cstdio>

#include "tests/support/picture_compare.h"

namespace tavix::test {
namespace {

TEST(Misbehaving, Passes) { EXPECT_EQ(4, 2 + 2); }

TEST(Misbehaving, Skips) { GTEST_SKIP() << "skipped on purpose"; }

TEST(Misbehaving, FailsWithPictures) {
  const Picture red{3, 2, std::vector<std::uint32_t>(6, 0xFF0000)};
  Picture other = red;
  other.pixels[4] = 0x0000FF;
  for (int i = 0; i < 4; ++i) EXPECT_TRUE(SamePicture(red, other)) << "comparison " << i;
}

#if defined(TAVIX_HANGS)
TEST(Misbehaving, Hangs) {
  std::puts("hangs on purpose");
  std::fflush(stdout);
  ::Sleep(INFINITE);
}
#else
TEST(Misbehaving, Crashes) {
  std::puts("crashes on purpose");
  std::fflush(stdout);
  ::RaiseException(EXCEPTION_ACCESS_VIOLATION, EXCEPTION_NONCONTINUABLE, 0, nullptr);
}
#endif

TEST(Misbehaving, IsNeverReached) { EXPECT_EQ(4, 2 + 2); }

}  // namespace
}  // namespace tavix::test
