// The sorted sequence and its prefix sums, against plain vectors.
#include "platform/objectstore/ordered_entries.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>

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

OrderedEntry Entry(std::uint64_t number) {
  OrderedEntry entry;
  entry.number = number;
  return entry;
}

void ExpectSame(const OrderedEntries& entries, const std::vector<std::uint64_t>& expected) {
  ASSERT_EQ(expected.size(), entries.Size());
  OrderedEntries::Position position = entries.Begin();
  for (std::size_t i = 0; i < expected.size(); ++i) {
    ASSERT_EQ(expected[i], entries.At(position).number);
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
  std::vector<std::uint64_t> expected;
  for (std::uint64_t i = 0; i < 3000; ++i) {
    const std::uint64_t number = GetParam() == Feed::kRising    ? i
                                 : GetParam() == Feed::kFalling ? 3000 - i
                                                                : random() % 1000;
    const auto at = std::ranges::upper_bound(expected, number);
    entries.Insert(
        entries.Partition([&](const OrderedEntry& other) { return other.number <= number; }),
        Entry(number));
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
  for (const std::size_t size : {0U, 1U, 191U, 192U, 193U, 1000U}) {
    std::vector<std::uint64_t> expected(size);
    std::iota(expected.begin(), expected.end(), 0U);
    std::vector<OrderedEntry> sorted;
    for (const std::uint64_t number : expected) sorted.push_back(Entry(number));
    OrderedEntries entries;
    entries.Assign(sorted);
    ExpectSame(entries, expected);
    std::vector<OrderedEntry> back;
    entries.AppendTo(back);
    EXPECT_EQ(size, back.size());
  }
}

}  // namespace
}  // namespace tavix
