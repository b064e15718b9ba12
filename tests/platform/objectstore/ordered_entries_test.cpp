// The sorted sequence and its prefix sums, against plain vectors.
#include "platform/objectstore/ordered_entries.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <numeric>
#include <random>
#include <vector>

namespace tavix {
namespace {

TEST(PrefixCounts, SumsAndFindsWhateverWasChanged) {
  std::mt19937 random(5);
  for (const std::size_t size : {1U, 2U, 3U, 7U, 8U, 9U, 100U}) {
    std::vector<std::size_t> counts(size);
    for (std::size_t& count : counts) count = random() % 4;
    PrefixCounts sums;
    sums.Assign(counts);
    for (int round = 0; round < 200; ++round) {
      if (round % 10 == 0) {
        sums.Append();
        counts.push_back(0);
      }
      const std::size_t place = random() % counts.size();
      sums.Change(place, 1);
      ++counts[place];
    }
    std::size_t before = 0;
    for (std::size_t place = 0; place < counts.size(); ++place) {
      EXPECT_EQ(before, sums.SumBefore(place));
      for (std::size_t rest = 0; rest < counts[place]; ++rest) {
        const PrefixCounts::Found found = sums.Find(before + rest);
        EXPECT_EQ(place, found.place);
        EXPECT_EQ(rest, found.rest);
      }
      before += counts[place];
    }
  }
}

void ExpectSame(const OrderedEntries& entries, const std::vector<std::uint32_t>& expected) {
  ASSERT_EQ(expected.size(), entries.Size());
  OrderedEntries::Position position = entries.Begin();
  for (std::size_t i = 0; i < expected.size(); ++i) {
    ASSERT_EQ(expected[i], entries.At(position));
    ASSERT_EQ(i, entries.Index(position));
    ASSERT_EQ(position, entries.AtIndex(i));
    position = entries.Next(position);
  }
  EXPECT_EQ(entries.End(), position);
  EXPECT_EQ(entries.End(), entries.AtIndex(expected.size()));
}

// What feeds the row: in order, against it, and anyhow.
enum class Feed { kRising, kFalling, kMixed };

class OrderedEntriesTest : public testing::TestWithParam<Feed> {};

TEST_P(OrderedEntriesTest, HoldsWhatAVectorWouldHold) {
  std::mt19937 random(7);
  OrderedEntries entries;
  std::vector<std::uint32_t> expected;
  for (std::uint32_t i = 0; i < 3000; ++i) {
    const std::uint32_t number = GetParam() == Feed::kRising ? i
                                 : GetParam() == Feed::kFalling
                                     ? 3000 - i
                                     : static_cast<std::uint32_t>(random() % 1000);
    const auto at = std::ranges::upper_bound(expected, number);
    entries.Insert(entries.Partition([&](std::uint32_t other) { return other <= number; }), number);
    expected.insert(at, number);
  }
  ExpectSame(entries, expected);
  while (!expected.empty()) {
    for (std::size_t i = 0; i < 700 && !expected.empty(); ++i) {
      const std::size_t index = random() % expected.size();
      const std::uint64_t version = entries.Version();
      entries.Erase(entries.AtIndex(index));
      EXPECT_NE(entries.Version(), version);
      expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(index));
    }
    ExpectSame(entries, expected);
  }
}

INSTANTIATE_TEST_SUITE_P(Feeds, OrderedEntriesTest,
                         testing::Values(Feed::kRising, Feed::kFalling, Feed::kMixed));

TEST(OrderedEntries, TakesOverASortedRow) {
  for (const std::size_t size : {0U, 1U, 255U, 256U, 257U, 1000U}) {
    std::vector<std::uint32_t> expected(size);
    std::iota(expected.begin(), expected.end(), 0U);
    OrderedEntries entries;
    entries.Merge(expected, std::less<>());
    ExpectSame(entries, expected);
    entries.Clear();
    ExpectSame(entries, {});
  }
}

TEST(OrderedEntries, MergesASortedRowIntoAnother) {
  std::mt19937 random(9);
  for (const std::uint32_t below : {10U, 1000U, 100000U}) {
    OrderedEntries entries;
    std::vector<std::uint32_t> expected;
    for (const std::size_t size : {1U, 300U, 0U, 2000U, 5U, 700U}) {
      std::vector<std::uint32_t> more(size);
      for (std::uint32_t& number : more) number = static_cast<std::uint32_t>(random() % below);
      std::ranges::sort(more);
      const std::uint64_t version = entries.Version();
      entries.Merge(more, std::less<>());
      EXPECT_EQ(more.empty(), version == entries.Version());
      expected.insert(expected.end(), more.begin(), more.end());
      std::ranges::sort(expected);
      ExpectSame(entries, expected);
      // What follows the merge finds room in every stretch.
      for (int i = 0; i < 50; ++i) {
        const auto number = static_cast<std::uint32_t>(random() % below);
        const auto before = [&](std::uint32_t other) { return other <= number; };
        entries.Insert(entries.Partition(before), number);
        expected.insert(std::ranges::upper_bound(expected, number), number);
      }
      ExpectSame(entries, expected);
    }
  }
}

}  // namespace
}  // namespace tavix
