#include "store/record_list.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace tavix {
namespace {

struct Rec {
  std::int32_t key = 0;
  bool removed = false;
  int serial = 0;  // distinguishes records with one key
};

// The same list written as plainly as possible: no holes, no index.
class PlainList {
 public:
  void Append(std::int32_t key, int serial) { records_.push_back({key, false, serial}); }

  void RemoveCurrent() {
    records_.erase(records_.begin() + static_cast<std::ptrdiff_t>(*cursor_));
    cursor_.reset();
  }

  void Clear() {
    records_.clear();
    cursor_.reset();
  }

  int First() {
    cursor_.reset();
    if (!records_.empty()) cursor_ = 0;
    return cursor_ ? 0 : -1;
  }

  int Next() {
    if (!cursor_) return -2;
    if (++*cursor_ == records_.size()) cursor_.reset();
    return cursor_ ? 0 : -1;
  }

  int FindFirst(std::int32_t key) {
    cursor_ = FirstWithKey(key);
    return cursor_ ? 0 : -1;
  }

  // One step each way per round, backward first.
  int FindOutward(std::int32_t key) {
    if (!cursor_) return FindFirst(key);
    auto back = static_cast<std::ptrdiff_t>(*cursor_);
    std::size_t ahead = *cursor_ + 1;
    while (back >= 0 || ahead < records_.size()) {
      if (back >= 0) {
        if (records_[static_cast<std::size_t>(back)].key == key) {
          cursor_ = static_cast<std::size_t>(back);
          return 0;
        }
        --back;
      }
      if (ahead < records_.size()) {
        if (records_[ahead].key == key) {
          cursor_ = ahead;
          return 0;
        }
        ++ahead;
      }
    }
    return -1;
  }

  [[nodiscard]] std::optional<std::size_t> FirstWithKey(std::int32_t key) const {
    for (std::size_t i = 0; i < records_.size(); ++i) {
      if (records_[i].key == key) return i;
    }
    return std::nullopt;
  }

  [[nodiscard]] const std::vector<Rec>& Records() const { return records_; }
  [[nodiscard]] const Rec* Current() const { return cursor_ ? &records_[*cursor_] : nullptr; }

 private:
  std::vector<Rec> records_;
  std::optional<std::size_t> cursor_;
};

// A list under test and the plain one beside it; every operation is done to both.
class ListPair {
 public:
  void Append(std::int32_t key) {
    list_.Append({key, false, serial_});
    plain_.Append(key, serial_++);
  }
  void RemoveCurrent() {
    list_.RemoveCurrent();
    plain_.RemoveCurrent();
  }
  void Clear() {
    list_.Clear();
    plain_.Clear();
  }
  void First() { EXPECT_EQ(plain_.First(), list_.First()); }
  void Next() { EXPECT_EQ(plain_.Next(), list_.Next()); }
  void FindFirst(std::int32_t key) { EXPECT_EQ(plain_.FindFirst(key), list_.FindFirst(key)); }
  void FindOutward(std::int32_t key) { EXPECT_EQ(plain_.FindOutward(key), list_.FindOutward(key)); }

  [[nodiscard]] bool HasCurrent() const { return plain_.Current() != nullptr; }
  [[nodiscard]] std::size_t Count() const { return plain_.Records().size(); }

  void ExpectSameCurrent() const {
    ASSERT_EQ(plain_.Current() != nullptr, list_.Current() != nullptr);
    if (plain_.Current()) {
      ASSERT_EQ(plain_.Current()->serial, list_.Current()->serial);
    }
  }

  void ExpectSamePeek(std::int32_t key) const {
    const auto expected = plain_.FirstWithKey(key);
    const Rec* found = list_.Peek(key);
    ASSERT_EQ(found != nullptr, expected.has_value());
    if (found) {
      ASSERT_EQ(plain_.Records()[*expected].serial, found->serial);
    }
  }

  void ExpectSameRecords() const {
    ASSERT_EQ(plain_.Records().size(), list_.Count());
    ASSERT_EQ(plain_.Records().empty(), list_.IsEmpty());
    std::size_t at = 0;
    list_.ForEach([&](const Rec& record) {
      ASSERT_LT(at, plain_.Records().size());
      ASSERT_EQ(plain_.Records()[at].serial, record.serial);
      ++at;
    });
    ASSERT_EQ(plain_.Records().size(), at);
  }

 private:
  RecordList<Rec> list_;
  PlainList plain_;
  int serial_ = 0;
};

// `keys` small: many repeated keys; large: hardly any.
void CompareInRandomUse(unsigned seed, int keys, int operations) {
  std::mt19937 random(seed);
  const auto below = [&](int end) {
    return std::uniform_int_distribution<int>(0, end - 1)(random);
  };
  ListPair lists;
  for (int i = 0; i < operations; ++i) {
    const std::int32_t key = below(keys) - keys / 2;
    const int phase = i / 400 % 3;  // fill, use, empty
    const int choice = below(100);
    const int append_below = phase == 0 ? 60 : (phase == 1 ? 25 : 5);
    if (choice < append_below) {
      lists.Append(key);
    } else if (choice < append_below + 25) {
      lists.FindOutward(key);
    } else if (choice < append_below + 30) {
      lists.FindFirst(key);
    } else if (choice < append_below + 37) {
      lists.Next();
    } else if (choice < append_below + 39) {
      lists.First();
    } else if (lists.HasCurrent()) {
      lists.RemoveCurrent();
    }
    if (below(4000) == 0) lists.Clear();
    lists.ExpectSameCurrent();
    lists.ExpectSamePeek(below(keys) - keys / 2);
    if (i % 20 == 0) lists.ExpectSameRecords();
    if (::testing::Test::HasFatalFailure() || ::testing::Test::HasNonfatalFailure()) {
      FAIL() << "seed " << seed << ", keys " << keys << ", operation " << i;
    }
  }
}

TEST(RecordList, BehavesAsAPlainListInLongRandomUse) {
  for (const int keys : {1, 2, 7, 60, 1000, 1000000}) CompareInRandomUse(41, keys, 12000);
}

TEST(RecordList, EmptyHasNoCurrentRecord) {
  RecordList<Rec> list;
  EXPECT_TRUE(list.IsEmpty());
  EXPECT_EQ(nullptr, list.Current());
  EXPECT_EQ(-1, list.First());
  EXPECT_EQ(-2, list.Next());
  EXPECT_EQ(-1, list.FindOutward(1));
  EXPECT_EQ(nullptr, list.Peek(1));
}

TEST(RecordList, NextRunsOffTheEndOnce) {
  RecordList<Rec> list;
  list.Append({1, false, 0});
  list.Append({2, false, 1});
  EXPECT_EQ(0, list.First());
  EXPECT_EQ(0, list.Next());
  EXPECT_EQ(2, list.Current()->key);
  EXPECT_EQ(-1, list.Next());
  EXPECT_EQ(nullptr, list.Current());
  EXPECT_EQ(-2, list.Next());
}

TEST(RecordList, AFailedSearchLosesOnlyACursorItDidNotStartFrom) {
  RecordList<Rec> list;
  list.Append({1, false, 0});
  EXPECT_EQ(-1, list.FindOutward(9));
  EXPECT_EQ(nullptr, list.Current());
  EXPECT_EQ(0, list.FindOutward(1));
  EXPECT_EQ(-1, list.FindOutward(9));
  ASSERT_NE(nullptr, list.Current());
  EXPECT_EQ(1, list.Current()->key);
}

TEST(RecordList, AppendingKeepsTheCurrentRecord) {
  RecordList<Rec> list;
  list.Append({1, false, 0});
  ASSERT_EQ(0, list.First());
  for (int i = 0; i < 1000; ++i) list.Append({i, false, i + 1});
  ASSERT_NE(nullptr, list.Current());
  EXPECT_EQ(0, list.Current()->serial);
}

// Serials are positions: the search for key 7 starts at position `from`.
TEST(RecordList, OutwardSearchPrefersTheNearerAndThenTheBackwardOne) {
  const struct {
    const char* keys;  // one digit per record
    int from;
    int found;
  } rows[] = {{"0700700", 3, 4},  // ahead is nearer
              {"0707000", 2, 3},  // backward starts on the cursor itself: ahead is a round nearer
              {"0700700", 2, 1},  // one before and two ahead are one round: backward is tried first
              {"7000070", 2, 0}, {"7000700", 2, 4}, {"7000700", 1, 0},  // at the head
              {"7000700", 6, 4},                                        // only behind
              {"0000777", 0, 4},                                        // only ahead
              {"0077700", 3, 3},                                        // the current record itself
              {"7000070", 4, 5}};
  for (const auto& row : rows) {
    RecordList<Rec> list;
    int place = 0;
    for (const char digit : std::string(row.keys)) list.Append({digit - '0', false, place++});
    ASSERT_EQ(0, list.First());
    for (int i = 0; i < row.from; ++i) ASSERT_EQ(0, list.Next());
    ASSERT_EQ(0, list.FindOutward(7)) << row.keys;
    EXPECT_EQ(row.found, list.Current()->serial) << row.keys << " from " << row.from;
  }
}

TEST(RecordList, RemovedRecordsDoNotCountAsDistance) {
  RecordList<Rec> list;
  for (int i = 0; i < 7; ++i) list.Append({i == 0 || i == 6 ? 7 : i, false, i});
  for (const std::int32_t key : {4, 5}) {
    ASSERT_EQ(0, list.FindFirst(key));
    list.RemoveCurrent();
  }
  ASSERT_EQ(0, list.FindFirst(3));  // three rounds back, one ahead now
  ASSERT_EQ(0, list.FindOutward(7));
  EXPECT_EQ(6, list.Current()->serial);
}

TEST(RecordList, KeepsItsOrderWhileHolesAreClosed) {
  RecordList<Rec> list;
  for (int i = 0; i < 1000; ++i) list.Append({i, false, i});
  for (int i = 0; i < 1000; ++i) {
    if (i % 10 == 3) continue;
    ASSERT_EQ(0, list.FindOutward(i));
    list.RemoveCurrent();
    EXPECT_EQ(nullptr, list.Current());
  }
  EXPECT_EQ(100U, list.Count());
  int expected = 3;
  list.ForEach([&](const Rec& record) {
    EXPECT_EQ(record.key, expected);
    expected += 10;
  });
  EXPECT_EQ(1003, expected);
  EXPECT_EQ(0, list.First());
  EXPECT_EQ(3, list.Current()->key);
}

TEST(RecordList, AWalkMayChangeRecords) {
  RecordList<Rec> list;
  for (int i = 0; i < 5; ++i) list.Append({i, false, 0});
  list.ForEach([](Rec& record) { record.serial = record.key * 10; });
  const RecordList<Rec>& read_only = list;
  read_only.ForEach([&](const Rec& record) { EXPECT_EQ(record.serial, record.key * 10); });
  EXPECT_EQ(nullptr, list.Current());
}

TEST(RecordList, PositionsRiseInListOrderUntilTheyAreNumberedAnew) {
  RecordList<Rec> list;
  for (int i = 0; i < 300; ++i) list.Append({i, false, i});
  const std::uint64_t numbering = list.Numbering();
  ASSERT_EQ(0, list.FindFirst(7));
  EXPECT_EQ(7U, list.CurrentPosition());
  list.RemoveCurrent();
  EXPECT_EQ(300U, list.ByPosition().size());
  EXPECT_TRUE(list.ByPosition()[7].removed);
  EXPECT_EQ(8, list.ByPosition()[8].serial);
  EXPECT_EQ(list.Numbering(), numbering);
  for (int i = 20; i < 250; ++i) {
    ASSERT_EQ(0, list.FindFirst(i));
    list.RemoveCurrent();
  }
  EXPECT_LT(list.ByPosition().size(), 300U) << "the holes are closed";
  EXPECT_NE(list.Numbering(), numbering);
  const std::uint64_t closed = list.Numbering();
  list.Clear();
  EXPECT_EQ(0U, list.ByPosition().size());
  EXPECT_NE(list.Numbering(), closed);
}

}  // namespace
}  // namespace tavix
