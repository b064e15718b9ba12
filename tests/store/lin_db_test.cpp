// The line store on a database that fails.
#include "store/lin_db.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "platform/framework/database/device_store.h"
#include "platform/objectstore/failing_store.h"
#include "platform/objectstore/memory_store.h"

namespace tavix {
namespace {

class LineStore : public testing::Test {
 protected:
  LineStore() : before_(SetDeviceStore(&store_)) {}
  ~LineStore() override { SetDeviceStore(before_); }

  MemoryStore memory_;
  FailingStore store_{memory_};

 private:
  ObjectStore* before_;
};

TEST_F(LineStore, IsOpenAndUnchangedAfterClearingThoughItsDatabaseCouldNotBeDeleted) {
  CLinDb lines(0);
  EXPECT_TRUE(lines.Open());
  std::int32_t id = 0;
  ASSERT_EQ(0, lines.Add({1, 2}, 101, &id));
  ASSERT_EQ(0, lines.Add({1, 3}, 101, &id));
  EXPECT_EQ(2, id);
  ASSERT_TRUE(lines.Changed());

  store_.Fail(FailingStore::Operation::kDelete, StoreError::kInUse, 0, 1);
  EXPECT_EQ(0, lines.Clear());
  EXPECT_FALSE(lines.Changed());
  EXPECT_FALSE(lines.Open()) << "it is open already";
  EXPECT_EQ(0, lines.Find({1, 3})) << "with what it held";
  EXPECT_EQ(0, lines.Add({1, 4}, 101, &id));
  EXPECT_EQ(1, id) << "ids start at 1 again";
}

TEST_F(LineStore, IsClosedAndUnchangedAfterClearingWhenItsDatabaseCannotBeOpened) {
  CLinDb lines(0);
  EXPECT_TRUE(lines.Open());
  std::int32_t id = 0;
  ASSERT_EQ(0, lines.Add({1, 2}, 101, &id));

  store_.Fail(FailingStore::Operation::kOpen, StoreError::kTooManyOpen);
  EXPECT_EQ(-1, lines.Clear());
  EXPECT_FALSE(lines.Changed());
  EXPECT_FALSE(lines.Close()) << "it is closed";
  store_.Pass(FailingStore::Operation::kOpen);
  EXPECT_TRUE(lines.Open());
}

// ---- Lines for a redraw

constexpr double kAnywhere = std::numeric_limits<double>::infinity();
constexpr SegmentSieve kNothing{{{}, kAnywhere, kAnywhere}, {}};  // is held back

using Notes = std::vector<std::string>;

std::string Note(std::int16_t legend, GroundPoint start, GroundPoint end) {
  return std::to_string(legend) + ' ' + std::to_string(start.north) + ' ' +
         std::to_string(end.north);
}

// The records one after another, both ends looked up.
Notes Read(CLinDb& lines, const CPntList& points) {
  Notes notes;
  for (int code = lines.First(CLinDb::Order::kById); code == 0; code = lines.Next()) {
    Line line;
    GroundPoint start;
    GroundPoint end;
    if (lines.ReadCur(&line) == 0 && points.Locate(line.keys.a, &start) &&
        points.Locate(line.keys.b, &end)) {
      notes.push_back(Note(line.legend, start, end));
    }
  }
  return notes;
}

Notes Walk(CLinDb& lines, const CPntList& points) {
  Notes notes;
  lines.ForEachIn(points, kNothing, [&](std::int16_t legend, GroundPoint start, GroundPoint end) {
    notes.push_back(Note(legend, start, end));
  });
  return notes;
}

// Another program that has the database open, too, and writes what it likes.
class OtherProgram {
 public:
  OtherProgram() { EXPECT_TRUE(database_.Open(L"QZLinDB0", nullptr)); }

  void Add(CCeDBProp id, bool has_legend, CCeDBProp legend = CCeDBProp(short{105}, 115)) {
    std::array<CCeDBProp, 5> properties{id, CCeDBProp(short{1}, 112), CCeDBProp(short{2}, 113),
                                        CCeDBProp(short{0}, 114), legend};
    CCeDBRecord record;
    record.AddProps(properties.data(), has_legend ? 5 : 4);
    EXPECT_NE(0U, database_.AddRecord(&record));
  }
  void DeleteOne(DWORD number) {
    const DWORD count = database_.GetNumRecords();
    if (count > 0 && database_.SeekToIndex(number % count) != 0) database_.DeleteCurrRecord();
  }

 private:
  CCeDBDatabase database_;
};

TEST_F(LineStore, GivesARedrawTheLinesItsRecordsHold) {
  std::mt19937 random(12);
  const auto some_keys = [&] {
    const int a = static_cast<int>(random() % 40);
    return LineKeys::Of(a, static_cast<int>(random() % 40));
  };
  CPntList points;
  for (int key = 0; key < 36; ++key) points.Add({key, 0, u"", {key * 1.0, 0.0}, 1});
  CLinDb lines(0);
  ASSERT_TRUE(lines.Open());
  std::optional<OtherProgram> other(std::in_place);
  std::int32_t id = 0;
  std::size_t shown = 0;
  for (int step = 0; step < 3000; ++step) {
    const LineKeys keys = some_keys();
    const unsigned choice = random() % 100;
    if (choice < 50) {
      EXPECT_EQ(lines.Find(keys) == 0, lines.Contains(keys));
      if (!lines.Contains(keys)) {
        ASSERT_EQ(0, lines.Add(keys, static_cast<std::int16_t>(choice), &id));
      }
    } else if (choice < 60) {
      lines.Remove(keys);
    } else if (choice < 70) {
      if (lines.Find(keys) == 0) lines.SetCurHan(static_cast<std::int16_t>(random() % 100));
    } else if (choice < 74) {
      points.Add({static_cast<int>(random() % 40), 0, u"", {step * 1.0, 0.0}, 1});
    } else if (choice < 78) {
      points.Remove(static_cast<int>(random() % 40));
    } else if (choice == 80) {
      other->Add(CCeDBProp(static_cast<short>(random()), 111), random() % 4 != 0);
    } else if (choice == 81 && random() % 4 == 0) {
      other->Add(CCeDBProp(static_cast<long>(random() % 100), 111), true);  // not sorted by it
    } else if (choice == 82 && random() % 4 == 0) {
      const CCeDBProp wide(static_cast<long>(random() % 100), 115);
      other->Add(CCeDBProp(static_cast<short>(random()), 111), true, wide);
      if (lines.Find({1, 2}) == 0) lines.SetCurHan(static_cast<std::int16_t>(random() % 100));
    } else if (choice < 86) {
      other->DeleteOne(random());
    } else if (choice == 86 && random() % 4 == 0) {
      other.reset();
      ASSERT_EQ(0, lines.Clear());
      other.emplace();
    }
    const bool fails = random() % 50 == 0;
    if (fails) store_.Fail(FailingStore::Operation::kRead, StoreError::kDeleted, 5, 1);
    if (fails) Walk(lines, points);
    store_.Pass(FailingStore::Operation::kRead);
    const Notes expected = Read(lines, points);
    ASSERT_EQ(expected, Walk(lines, points)) << "step " << step;
    shown += expected.size();
  }
  EXPECT_LT(20000U, shown);
}

// The id of a record has 16 bits: from the 32,768th on lines are drawn before the first.
TEST_F(LineStore, GivesARedrawTheLinesInTheOrderOfTheirIds) {
  CPntList points;
  for (int key = 0; key <= 210; ++key) points.Add({key, 0, u"", {key * 1.0, 0.0}, 1});
  CLinDb lines(0);
  ASSERT_TRUE(lines.Open());
  std::int32_t id = 0;
  for (int i = 0; i < 33000; ++i) {
    ASSERT_EQ(0, lines.Add(LineKeys::Of(i % 210, i / 210), static_cast<std::int16_t>(i), &id));
    if (i % 4096 == 0 || (i > 32760 && i < 32775)) {
      ASSERT_EQ(Read(lines, points), Walk(lines, points)) << i;
    }
  }
  ASSERT_EQ(Read(lines, points), Walk(lines, points));
}

TEST_F(LineStore, ReadsNoRecordOfItsOwnForARedraw) {
  CPntList points;
  for (int key = 0; key < 50; ++key) points.Add({key, 0, u"", {key * 1.0, 0.0}, 1});
  CLinDb lines(0);
  ASSERT_TRUE(lines.Open());
  std::int32_t id = 0;
  const auto reads = [&] { return store_.Calls(FailingStore::Operation::kRead); };
  for (int key = 1; key < 50; ++key) {
    EXPECT_FALSE(lines.Contains(LineKeys::Of(key, 0)));
    ASSERT_EQ(0, lines.Add(LineKeys::Of(key, 0), 101, &id));
  }
  EXPECT_EQ(49U, Walk(lines, points).size());
  EXPECT_EQ(0, reads()) << "nothing that was entered is read back";
  ASSERT_EQ(0, lines.Add(LineKeys::Of(1, 2), 101, &id));
  points.Find(7);
  points.SetCurCrd({-1, -1});
  EXPECT_EQ(50U, Walk(lines, points).size());
  EXPECT_EQ(0, reads()) << "nor is a line entered between two redraws";
  EXPECT_EQ(0, lines.Find(LineKeys::Of(3, 0)));
  ASSERT_EQ(0, lines.SetCurHan(7));
  ASSERT_EQ(0, lines.Remove(LineKeys::Of(0, 4)));
  const int before = reads();
  EXPECT_EQ(49U, Walk(lines, points).size());
  EXPECT_EQ(before, reads()) << "nor are the others when one has changed or gone";
  EXPECT_EQ(Read(lines, points), Walk(lines, points));
}

}  // namespace
}  // namespace tavix
