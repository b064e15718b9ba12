#include "store/line_index.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <utility>
#include <vector>

namespace tavix {
namespace {

TEST(LineIndex, FindsALineWhicheverWayItGoes) {
  LineIndex index;
  index.Enter({5, 3}, 71);
  index.Enter({-32768, 32767}, 72);
  index.Enter({-1, 0}, 73);
  EXPECT_EQ(71U, index.Find({3, 5}));
  EXPECT_EQ(71U, index.Find({5, 3}));
  EXPECT_EQ(72U, index.Find({32767, -32768}));
  EXPECT_EQ(73U, index.Find({0, -1}));
  EXPECT_EQ(LineIndex::kNoRecord, index.Find({0, 0}));
  EXPECT_EQ(LineIndex::kNoRecord, index.Find({3, 3}));
  EXPECT_EQ(LineIndex::kNoRecord, index.Find({-1, -1}));
}

TEST(LineIndex, OfRecordsWithOnePairTheFirstCountsUntilItIsRemoved) {
  LineIndex index;
  index.Enter({1, 2}, 30);
  index.Enter({2, 1}, 20);
  index.Enter({1, 2}, 10);
  for (const std::uint32_t first : {30U, 20U, 10U}) {
    EXPECT_EQ(first, index.Find({1, 2}));
    index.Remove({2, 1});
  }
  EXPECT_EQ(LineIndex::kNoRecord, index.Find({1, 2}));
  index.Remove({1, 2});  // no such record: nothing happens
}

TEST(LineIndex, AgreesWithAPlainRowOfLines) {
  for (const int keys : {2, 9, 200}) {
    std::mt19937 random(17);
    const auto some_key = [&] {
      return static_cast<std::int16_t>(static_cast<int>(random() % 1000) % keys - keys / 2);
    };
    LineIndex index;
    std::vector<std::pair<LineKeys, std::uint32_t>> plain;
    const auto find = [&](LineKeys keys_of_line) {
      return std::ranges::find_if(plain, [&](const auto& line) {
        return line.first.Smaller() == keys_of_line.Smaller() &&
               line.first.Larger() == keys_of_line.Larger();
      });
    };
    std::uint32_t record = 0;
    for (int i = 0; i < 6000; ++i) {
      const LineKeys line{some_key(), some_key()};
      if (random() % 100 < (i < 2000 ? 70U : 45U)) {
        index.Enter(line, ++record);
        plain.emplace_back(line, record);
      } else {
        index.Remove(line);
        if (const auto found = find(line); found != plain.end()) plain.erase(found);
      }
      if (random() % 2000 == 0) {
        index.Clear();
        plain.clear();
      }
      const LineKeys asked{some_key(), some_key()};
      const auto expected = find(asked);
      ASSERT_EQ(expected == plain.end() ? LineIndex::kNoRecord : expected->second,
                index.Find(asked));
    }
  }
}

}  // namespace
}  // namespace tavix
