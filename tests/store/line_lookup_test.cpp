// The search for a line, compared with reading the records one after another.
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <random>

#include "platform/framework/database/device_store.h"
#include "platform/objectstore/failing_store.h"
#include "platform/objectstore/memory_store.h"
#include "store/lin_db.h"

namespace tavix {
namespace {

constexpr WORD kNumber = 111;
constexpr WORD kSmallerKey = 112;
constexpr WORD kLargerKey = 113;

class LineSearch : public testing::Test {
 protected:
  LineSearch() : before_(SetDeviceStore(&store_)) {}
  ~LineSearch() override { SetDeviceStore(before_); }

  MemoryStore memory_;
  FailingStore store_{memory_};

 private:
  ObjectStore* before_;
};

std::optional<std::int16_t> ShortOf(const CCeDBRecord& record, WORD ident) {
  const CCeDBProp* property = record.GetPropFromIdent(ident);
  return property ? std::optional(property->GetShort()) : std::nullopt;
}

// Another program that has the database open, too.
class Outsider {
 public:
  Outsider() {
    CCeDBProp by_smaller(CCeDBProp::Type_Short, kSmallerKey);
    EXPECT_TRUE(database_.Open(L"QZLinDB0", &by_smaller));
    database_.m_bAutoSeekNext = FALSE;
  }

  // What the search is to return, and the line number of what it is to find: the records read in
  // the order of the smaller key.
  int Find(LineKeys keys, std::int16_t* number) {
    if (database_.GetNumRecords() == 0) return -3;
    if (database_.SeekFirstEqual(CCeDBProp(keys.Smaller(), kSmallerKey)) == 0) return -1;
    do {
      CCeDBRecord record;
      EXPECT_TRUE(database_.ReadCurrRecord(&record));
      if (!ShortOf(record, kSmallerKey)) return -6;
      if (ShortOf(record, kSmallerKey) != keys.Smaller()) return -1;
      if (!ShortOf(record, kLargerKey)) return -7;
      if (ShortOf(record, kLargerKey) == keys.Larger()) {
        *number = ShortOf(record, kNumber).value_or(0);
        return 0;
      }
    } while (database_.SeekNext() != 0);
    return -1;
  }

  void Add(LineKeys keys, bool has_smaller, bool has_larger, bool wide_smaller) {
    CCeDBProp number(++last_number_, kNumber);
    CCeDBProp smaller(keys.Smaller(), kSmallerKey);
    CCeDBProp wide(long{keys.Smaller()}, kSmallerKey);
    CCeDBProp larger(keys.Larger(), kLargerKey);
    CCeDBRecord record;
    CCeDBProp larger_first(short{0}, 114);
    CCeDBProp legend(short{105}, 115);
    for (CCeDBProp* each : {&number, &larger_first, &legend}) record.AddProp(each);
    if (wide_smaller) record.AddProp(&wide);
    if (has_smaller) record.AddProp(&smaller);
    if (has_larger) record.AddProp(&larger);
    EXPECT_NE(0U, database_.AddRecord(&record));
  }

  bool SeekAny(std::uint32_t number) {
    const DWORD count = database_.GetNumRecords();
    return count > 0 && database_.SeekToIndex(number % count) != 0;
  }
  void Delete() { EXPECT_TRUE(database_.DeleteCurrRecord()); }
  void TakeOut(WORD ident) {
    CCeDBProp property(CCeDBProp::Type_Short, ident);
    EXPECT_TRUE(database_.DeleteCurrProps(&property, 1));
  }
  void Put(WORD ident, std::int16_t value) {
    CCeDBProp property(value, ident);
    CCeDBRecord record;
    record.AddProp(&property);
    EXPECT_TRUE(database_.WriteCurrRecord(&record));
  }

 private:
  CCeDBDatabase database_;
  short last_number_ = 20000;  // far from those the store gives
};

// `outside`: how many of a thousand steps another program takes; `spoils`: whether it leaves
// records that lack a key.
void CompareInRandomUse(unsigned seed, int keys, unsigned outside, bool spoils) {
  SCOPED_TRACE(testing::Message() << "seed " << seed << ", " << keys << " keys, " << outside);
  std::mt19937 random(seed);
  const auto some_keys = [&] {
    return LineKeys::Of(static_cast<int>(random()) % keys, static_cast<int>(random()) % keys);
  };
  CLinDb lines(0);
  ASSERT_TRUE(lines.Open());
  Outsider outsider;
  std::int32_t id = 0;
  int found_lines = 0;
  for (int step = 0; step < 3000; ++step) {
    const LineKeys keys_of_step = some_keys();
    const unsigned choice = random() % 100;
    if (random() % 1000 < outside) {
      if (choice < 40) {
        const bool whole = !spoils || random() % 4 != 0;
        outsider.Add(keys_of_step, whole || choice < 10, whole || choice >= 10,
                     spoils && choice == 20);
      } else if (outsider.SeekAny(random())) {
        if (choice < 60) outsider.Delete();
        if (choice >= 60 && choice < 80) outsider.Put(choice < 70 ? kSmallerKey : kLargerKey, 3);
        if (choice >= 80 && spoils) outsider.TakeOut(choice < 90 ? kSmallerKey : kLargerKey);
      }
    } else if (choice < 40) {
      if (choice < 5 || lines.Find(keys_of_step) != 0) lines.Add(keys_of_step, 101, &id);
    } else if (choice < 55) {
      std::int16_t ignored = 0;
      const int expected = outsider.Find(keys_of_step, &ignored);
      ASSERT_EQ(expected, lines.Remove(keys_of_step));
    } else if (choice < 60) {
      if (lines.Find(keys_of_step) == 0) lines.SetCurHan(102);
    } else if (choice < 63) {
      lines.First(CLinDb::Order::kById);  // the search opens the other order again
    }
    const LineKeys asked = some_keys();
    std::int16_t number = 0;
    const int expected = outsider.Find(asked, &number);
    ASSERT_EQ(expected, lines.Find(asked)) << "step " << step;
    if (expected != 0) continue;
    ++found_lines;
    Line found;
    ASSERT_EQ(0, lines.ReadCur(&found)) << "step " << step;
    ASSERT_EQ(number, found.id) << "step " << step;
  }
  EXPECT_GT(found_lines, 100);
}

TEST_F(LineSearch, FindsWhatReadingTheRecordsFinds) {
  unsigned seed = 0;
  for (const int keys : {3, 12, 60}) {
    CompareInRandomUse(++seed, keys, 0, false);
    CompareInRandomUse(++seed, keys, 3, false);
    CompareInRandomUse(++seed, keys, 300, false);
    CompareInRandomUse(++seed, keys, 30, true);
  }
}

class StarOfLines : public LineSearch {
 protected:
  static constexpr int kLines = 3000;

  StarOfLines() {
    EXPECT_TRUE(lines_.Open());
    std::int32_t id = 0;
    for (int key = 1; key <= kLines; ++key) EXPECT_EQ(0, lines_.Add(LineKeys::Of(key, 0), 1, &id));
  }

  int ReadsOf(const std::function<void()>& use) {
    const int before = store_.Calls(FailingStore::Operation::kRead);
    use();
    return store_.Calls(FailingStore::Operation::kRead) - before;
  }

  CLinDb lines_{0};
};

TEST_F(StarOfLines, IsNotReadFromItsBeginning) {
  EXPECT_LE(ReadsOf([&] { EXPECT_EQ(0, lines_.Find(LineKeys::Of(0, kLines))); }), 1);
  EXPECT_LE(ReadsOf([&] { EXPECT_EQ(-1, lines_.Find(LineKeys::Of(0, kLines + 1))); }), 1);
  EXPECT_EQ(0, lines_.First(CLinDb::Order::kById)) << "the other order, as a redraw opens it";
  EXPECT_LE(ReadsOf([&] { EXPECT_EQ(0, lines_.Find(LineKeys::Of(0, kLines))); }), 1);
  EXPECT_EQ(0, lines_.SetCurHan(7));
  EXPECT_EQ(0, lines_.Remove(LineKeys::Of(0, 5)));
  EXPECT_LE(ReadsOf([&] { EXPECT_EQ(0, lines_.Find(LineKeys::Of(0, kLines))); }), 1);
}

TEST_F(StarOfLines, IsReadAgainOnceAfterAnotherProgramHasChangedIt) {
  Outsider outsider;
  ASSERT_TRUE(outsider.SeekAny(0));
  outsider.Delete();
  const int reads = ReadsOf([&] {
    EXPECT_EQ(-1, lines_.Find(LineKeys::Of(0, 1))) << "the one that was deleted";
    for (int i = 0; i < 1000; ++i) EXPECT_EQ(0, lines_.Find(LineKeys::Of(0, kLines)));
  });
  EXPECT_GE(reads, kLines - 1);
  EXPECT_LE(reads, 4 * kLines);
}

TEST_F(StarOfLines, ThatCannotBeReadAgainIsSearchedByReading) {
  using Operation = FailingStore::Operation;
  Outsider outsider;
  ASSERT_TRUE(outsider.SeekAny(1));
  outsider.Put(kLargerKey, kLines + 9);
  EXPECT_EQ(0, lines_.Find(LineKeys::Of(0, kLines)));
  EXPECT_EQ(0, lines_.Find(LineKeys::Of(0, 3)));
  store_.Fail(Operation::kRead, StoreError::kDeleted, 1000, 1);
  EXPECT_EQ(0, lines_.Find(LineKeys::Of(0, 4)));
  store_.Pass(Operation::kRead);
  EXPECT_EQ(-1, lines_.Find(LineKeys::Of(0, 2)));
  EXPECT_EQ(0, lines_.Find(LineKeys::Of(0, kLines + 9)));
}

// Whatever cannot be done has the code of its step, with or without an index.
TEST_F(StarOfLines, TellsTheStepThatFailed) {
  using Operation = FailingStore::Operation;
  const struct {
    Operation operation;
    int passing;
    int larger;  // key of the line looked for
    int code;
  } rows[] = {{Operation::kInfo, 0, 7, -3},  {Operation::kSeek, 0, 7, -4},
              {Operation::kSeek, 1, 7, -1},  {Operation::kSeek, 2, 7, -1},
              {Operation::kSeek, 2, 1, 0},   {Operation::kRead, 0, 7, -5},
              {Operation::kRead, 0, -9, -1}, {Operation::kRead, 0, kLines + 1, -5}};
  for (const bool indexed : {true, false}) {
    std::optional<Outsider> outsider;
    if (!indexed) {
      ASSERT_TRUE(outsider.emplace().SeekAny(kLines - 1));
      outsider->Put(115, 3);
    }
    for (const auto& row : rows) {
      store_.Fail(row.operation, StoreError::kInvalidParameter, row.passing);
      EXPECT_EQ(row.code, lines_.Find(LineKeys::Of(0, row.larger)))
          << static_cast<int>(row.operation) << ' ' << row.passing << ' ' << row.larger;
      store_.Pass(row.operation);
    }
  }
}

}  // namespace
}  // namespace tavix
