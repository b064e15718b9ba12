#include "store/key_index.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <numeric>
#include <random>
#include <span>
#include <vector>

namespace tavix {
namespace {

// An index over an array of keys, with a record of what is in it.
class IndexedKeys {
 public:
  void Insert(std::int32_t key) {
    const bool repeated = !Expected(key).empty();
    index_.MakeRoom(Records());
    records_.push_back({key, false});
    const auto position = static_cast<std::uint32_t>(records_.size() - 1);
    EXPECT_EQ(repeated, index_.Insert(Records(), position));
    in_.push_back(position);
  }

  // Removes the nth entry that is in the index.
  void Erase(std::size_t nth) {
    index_.Erase(Records(), in_[nth]);
    records_[in_[nth]].removed = true;
    in_.erase(in_.begin() + static_cast<std::ptrdiff_t>(nth));
  }

  void Clear() {
    index_.Clear();
    in_.clear();
    records_.clear();
  }

  void CloseHoles() {
    std::erase_if(records_, [](const Record& record) { return record.removed; });
    in_.resize(records_.size());
    std::iota(in_.begin(), in_.end(), 0U);
    index_.Rebuild(Records());
  }

  [[nodiscard]] std::size_t Count() const { return in_.size(); }

  [[nodiscard]] std::vector<std::uint32_t> Found(std::int32_t key) const {
    std::vector<std::uint32_t> found;
    index_.ForEach(Records(), key, [&](std::uint32_t position) {
      found.push_back(position);
      return true;
    });
    std::sort(found.begin(), found.end());
    return found;
  }

  [[nodiscard]] std::vector<std::uint32_t> Expected(std::int32_t key) const {
    std::vector<std::uint32_t> expected;
    for (const std::uint32_t position : in_) {
      if (records_[position].key == key) expected.push_back(position);
    }
    return expected;
  }

  [[nodiscard]] int VisitsUntilRefused(std::int32_t key) const {
    int visits = 0;
    index_.ForEach(Records(), key, [&](std::uint32_t) {
      ++visits;
      return false;
    });
    return visits;
  }

 private:
  struct Record {
    std::int32_t key;
    bool removed;
  };

  [[nodiscard]] std::span<const Record> Records() const { return records_; }

  KeyIndex index_;
  std::vector<Record> records_;
  std::vector<std::uint32_t> in_;
};

TEST(KeyIndex, EmptyFindsNothing) {
  const IndexedKeys keys;
  EXPECT_TRUE(keys.Found(0).empty());
  EXPECT_TRUE(keys.Found(-1).empty());
}

TEST(KeyIndex, AnyKeyCanBeStored) {
  constexpr std::int32_t kKeys[] = {0, -1, 1, std::numeric_limits<std::int32_t>::min(),
                                    std::numeric_limits<std::int32_t>::max()};
  IndexedKeys keys;
  for (const std::int32_t key : kKeys) keys.Insert(key);
  for (const std::int32_t key : kKeys) EXPECT_EQ(keys.Found(key), keys.Expected(key)) << key;
  EXPECT_TRUE(keys.Found(2).empty());
}

TEST(KeyIndex, RepeatedKeysHaveAnEntryEach) {
  IndexedKeys keys;
  for (int i = 0; i < 100; ++i) keys.Insert(i % 3);
  EXPECT_EQ(34U, keys.Found(0).size());
  EXPECT_EQ(1, keys.VisitsUntilRefused(0));
  keys.Erase(0);
  EXPECT_EQ(keys.Found(0), keys.Expected(0));
  keys.Clear();
  EXPECT_TRUE(keys.Found(0).empty());
  keys.Insert(5);
  EXPECT_EQ(1U, keys.Found(5).size());
}

TEST(KeyIndex, RandomInsertionsAndRemovalsLoseNothing) {
  for (const int most_keys : {3, 40, 5000, 2000000000}) {
    std::mt19937 random(31);
    IndexedKeys keys;
    const auto below = [&](std::size_t end) {
      return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
    };
    for (int i = 0; i < 3000; ++i) {
      // Grows at first, then stays about as full.
      const bool insert = keys.Count() == 0 || below(100) < (i < 1000 ? 80U : 50U);
      const auto key = static_cast<std::int32_t>(below(static_cast<std::size_t>(most_keys)));
      if (insert) {
        keys.Insert(key);
      } else {
        keys.Erase(below(keys.Count()));
      }
      ASSERT_EQ(keys.Found(key), keys.Expected(key));
      if (i % 500 == 499) keys.CloseHoles();
    }
    while (keys.Count() > 0) keys.Erase(below(keys.Count()));
    EXPECT_TRUE(keys.Found(0).empty());
  }
}

}  // namespace
}  // namespace tavix
