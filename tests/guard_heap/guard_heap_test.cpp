// The guard heap: a program that reads past a block, or uses one after its end, ends there and
// then.
#include "tests/guard_heap/guard_heap.h"

#include <gtest/gtest.h>
#include <tavix/tavix.h>

#include <cstdlib>
#include <cstring>
#include <numeric>
#include <vector>

#include "tests/support/plot_test.h"

namespace tavix::test {
namespace {

// Pointers and bytes are volatile: the compiler neither sees through the mistakes nor removes them.
using Place = volatile unsigned char*;

Place Take(std::size_t size) { return static_cast<Place>(std::malloc(size)); }
void Free(Place block) { std::free(const_cast<unsigned char*>(block)); }

bool IsReadable(Place place) {
  MEMORY_BASIC_INFORMATION page{};
  ::VirtualQuery(const_cast<unsigned char*>(place), &page, sizeof page);
  return page.State == MEM_COMMIT && page.Protect == PAGE_READWRITE;
}

#define EXPECT_ACCESS_VIOLATION(statement) \
  EXPECT_EXIT(statement, testing::ExitedWithCode(static_cast<int>(EXCEPTION_ACCESS_VIOLATION)), "")

class BlockOfSize : public testing::TestWithParam<std::size_t> {};

TEST_P(BlockOfSize, IsReadableToItsLastByteUntilItIsFreed) {
  const std::size_t size = GetParam();
  const Place volatile block = Take(size);
  for (std::size_t i = 0; i < size; ++i) block[i] = static_cast<unsigned char>(i);
  for (std::size_t i = 0; i < size; ++i) ASSERT_EQ(static_cast<unsigned char>(i), block[i]);
  EXPECT_FALSE(IsReadable(block + size));
  Free(block);
  EXPECT_FALSE(IsReadable(block));
  EXPECT_FALSE(IsReadable(block + size - 1));
}

// Later blocks must not move in where a dangling pointer points to.
TEST_P(BlockOfSize, StaysUnreadableOnceItIsFreed) {
  const Place volatile block = Take(GetParam());
  Free(block);
  std::vector<Place> later;
  for (int i = 0; i < 100; ++i) later.push_back(Take(GetParam()));
  EXPECT_FALSE(IsReadable(block));
  for (const Place each : later) Free(each);
}

INSTANTIATE_TEST_SUITE_P(Sizes, BlockOfSize,
                         testing::Values(1, 2, 3, 5, 8, 24, 31, 100, 4063, 4064, 4065, 4096,
                                         20001));

TEST(GuardHeap, StopsAReadOneBytePastABlock) {
  const Place volatile block = Take(13);
  EXPECT_ACCESS_VIOLATION(static_cast<void>(block[13]));
  Free(block);
}

TEST(GuardHeap, StopsAWriteOneBytePastABlock) {
  const Place volatile block = Take(13);
  EXPECT_ACCESS_VIOLATION(block[13] = 1);
  Free(block);
}

TEST(GuardHeap, StopsAReadOfAFreedBlock) {
  const Place volatile block = Take(13);
  Free(block);
  EXPECT_ACCESS_VIOLATION(static_cast<void>(block[0]));
}

TEST(GuardHeap, StopsAWriteToAFreedBlock) {
  const Place volatile block = Take(13);
  Free(block);
  EXPECT_ACCESS_VIOLATION(block[12] = 1);
}

TEST(GuardHeap, StopsASecondFree) {
  const Place volatile block = Take(13);
  Free(block);
  EXPECT_ACCESS_VIOLATION(Free(block));
}

TEST(GuardHeap, StopsTheEndOfABlockWhoseFrontWasOverwritten) {
  const Place volatile block = Take(13);
  EXPECT_ACCESS_VIOLATION({
    for (int i = 1; i <= 32; ++i) block[-i] = 0;
    Free(block);
  });
  Free(block);
}

TEST(GuardHeapBlocks, KeepTheirBytesWhenTheyGrow) {
  auto* const text = static_cast<char*>(std::malloc(3));
  std::memcpy(text, "abc", 3);
  auto* const volatile longer = static_cast<char*>(std::realloc(text, 5000));
  EXPECT_EQ(0, std::memcmp("abc", longer, 3));
  EXPECT_ACCESS_VIOLATION(static_cast<void>(static_cast<Place>(static_cast<void*>(longer))[5000]));
  std::free(longer);
}

TEST(GuardHeapBlocks, AreZeroWhereThatIsAskedFor) {
  auto* const volatile numbers = static_cast<int*>(std::calloc(100, sizeof(int)));
  EXPECT_EQ(0, std::accumulate(numbers, numbers + 100, 0));
  std::free(numbers);
}

TEST(GuardHeapBlocks, AreRefusedWhereTheSizeHasNoEnd) {
  volatile std::size_t many = ~std::size_t{0} / 2;
  EXPECT_EQ(nullptr, std::malloc(many));
  EXPECT_EQ(nullptr, std::calloc(many, 16));
}

TEST(GuardHeapBlocks, AreCounted) {
  const long before = GuardHeapBlocks();
  auto* const volatile block = static_cast<char*>(std::malloc(1));
  const long taken = GuardHeapBlocks();
  std::free(block);
  EXPECT_EQ(before + 1, taken);
  EXPECT_EQ(before, GuardHeapBlocks());
}

// A host that hands the library less than it says: the library's own reads and writes end there.
class GuardedHost : public PlotTest {};

TEST_F(GuardedHost, IsStoppedWhereTheLibraryReadsPastItsNumbers) {
  ASSERT_EQ(0, Tavix_Crt());
  const std::vector<double> x(3);
  EXPECT_EQ(0, Tavix_FigMdlPly(3, x.data(), x.data()));
  EXPECT_ACCESS_VIOLATION(Tavix_FigMdlPly(4, x.data(), x.data()));
}

TEST_F(GuardedHost, IsStoppedWhereTheLibraryReadsNumbersThatAreGone) {
  ASSERT_EQ(0, Tavix_Crt());
  auto* const volatile x = static_cast<double*>(std::malloc(sizeof(double)));
  *x = 1;
  EXPECT_EQ(0, Tavix_FigMdlPly(1, x, x));
  std::free(x);
  EXPECT_ACCESS_VIOLATION(Tavix_FigMdlPly(1, x, x));
}

TEST_F(GuardedHost, IsStoppedWhereTheLibraryWritesPastItsNumbers) {
  MakePlot(200, 200);
  for (int i = 0; i < 3; ++i) Tavix_VoAdd(i, i);
  std::vector<double> few(2);
  std::vector<double> enough(3);
  EXPECT_ACCESS_VIOLATION(Tavix_VoLst(enough.data(), few.data()));
}

}  // namespace
}  // namespace tavix::test
