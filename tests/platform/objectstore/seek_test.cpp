// The seek pointer: where every kind of seek and reading move it.
#include "tests/platform/objectstore/store_fixture.h"

namespace tavix {
namespace {

constexpr SortOrder kByKey = {.property = PropertyId(111, PropertyType::kI2)};

// Keys 10, 20, 20, 20, 30 and one record without a key.
class SeekTest : public StoreTest {
 protected:
  void Fill(const SortOrder& order, bool auto_increment = false) {
    handle_ = Make(order, auto_increment);
    twenty_[0] = AddKey(handle_, 20);
    thirty_ = AddKey(handle_, 30);
    twenty_[1] = AddKey(handle_, 20);
    none_ = Add(handle_, {Property::I2(kOther, 1)});
    ten_ = AddKey(handle_, 10);
    twenty_[2] = AddKey(handle_, 20);
  }
  Outcome<ObjectId> Seek(const SeekTarget& target) {
    index_ = kUntouched;
    return Store().Seek(handle_, target, &index_);
  }
  Outcome<ObjectId> SeekKey(SeekTarget::Kind kind, std::int16_t key) {
    return Seek(SeekTarget::ToValue(kind, Property::I2(kKey, key)));
  }
  bool AtEnd() { return Store().Read(handle_).error == StoreError::kNoMoreItems; }

  static constexpr std::uint32_t kUntouched = 77;
  StoreHandle handle_ = 0;
  std::uint32_t index_ = kUntouched;
  ObjectId ten_ = 0;
  std::array<ObjectId, 3> twenty_{};
  ObjectId thirty_ = 0;
  ObjectId none_ = 0;
};

TEST_P(SeekTest, AHandleStartsAtTheFirstRecord) {
  Fill(kByKey);
  EXPECT_EQ(ten_, Store().Read(Open(kByKey.property)).value.id);
}

TEST_P(SeekTest, AHandleOnNothingStartsAtTheEnd) {
  handle_ = Make(kByKey);
  EXPECT_TRUE(AtEnd());
  for (const SeekTarget::Kind kind : {kBeginning, kEnd, kCurrent}) {
    EXPECT_EQ(StoreError::kNoMoreItems, Seek(SeekTarget::To(kind)).error);
  }
  for (const SeekTarget::Kind kind : {kSmaller, kFirstEqual, kGreater, kNextEqual}) {
    EXPECT_EQ(StoreError::kNoMoreItems, SeekKey(kind, 1).error);
  }
  EXPECT_EQ(kUntouched, index_);
}

TEST_P(SeekTest, ByPlaceFromEitherEnd) {
  Fill(kByKey);
  const std::vector<ObjectId> order = {ten_, twenty_[0], twenty_[1], twenty_[2], thirty_, none_};
  for (std::uint32_t i = 0; i < order.size(); ++i) {
    EXPECT_EQ(order[i], Seek(SeekTarget::To(kBeginning, i)).value);
    EXPECT_EQ(i, index_);
    EXPECT_EQ(order[order.size() - 1 - i], Seek(SeekTarget::To(kEnd, i)).value);
    EXPECT_EQ(order.size() - 1 - i, index_);
  }
  for (const SeekTarget::Kind kind : {kBeginning, kEnd}) {
    for (const std::int64_t offset :
         {std::int64_t{6}, std::int64_t{0xFFFFFFFF}, std::int64_t{-1}}) {
      Seek(SeekTarget::To(kBeginning));
      EXPECT_EQ(StoreError::kNoMoreItems, Seek(SeekTarget::To(kind, offset)).error);
      EXPECT_TRUE(AtEnd());
    }
  }
}

TEST_P(SeekTest, FromHereBothWays) {
  Fill(kByKey);
  struct Row {
    std::int64_t from, step, to;  // 6: the end
  };
  for (const Row row : {Row{0, 0, 0}, Row{0, 1, 1}, Row{0, 5, 5}, Row{0, 6, 6}, Row{0, -1, 6},
                        Row{5, -5, 0}, Row{5, 1, 6}, Row{3, -1, 2}, Row{6, -1, 5}, Row{6, -6, 0},
                        Row{6, 0, 6}, Row{6, 1, 6}, Row{2, -3, 6}, Row{2, 1000000, 6}}) {
    Seek(SeekTarget::To(kBeginning, row.from));
    const Outcome<ObjectId> found = Seek(SeekTarget::To(kCurrent, row.step));
    SCOPED_TRACE(testing::Message() << row.from << " " << row.step);
    EXPECT_EQ(static_cast<bool>(found), row.to != 6);
    if (found) {
      EXPECT_EQ(row.to, index_);
    } else {
      EXPECT_TRUE(AtEnd());
    }
  }
}

TEST_P(SeekTest, ByObject) {
  Fill(kByKey);
  EXPECT_EQ(twenty_[2], Seek(SeekTarget::ToObject(twenty_[2])).value);
  EXPECT_EQ(3U, index_);
  EXPECT_EQ(none_, Seek(SeekTarget::ToObject(none_)).value);
  EXPECT_EQ(5U, index_);
  for (const ObjectId no_record : {ObjectId{0}, database_, ObjectId{999}, ~ObjectId{0}}) {
    EXPECT_EQ(StoreError::kInvalidParameter, Seek(SeekTarget::ToObject(no_record)).error);
    EXPECT_EQ(none_, Current(handle_)) << "the pointer stays";
  }
}

TEST_P(SeekTest, RecordsOfOtherDatabasesAreNotFound) {
  Fill(kByKey);
  const ObjectId other = Store().CreateDatabase(u"other", 0, {}).value;
  const StoreHandle other_handle = Store().Open(other, kNoSort, false).value;
  const ObjectId record = AddKey(other_handle, 1);
  EXPECT_EQ(StoreError::kInvalidParameter, Seek(SeekTarget::ToObject(record)).error);
  EXPECT_EQ(StoreError::kInvalidParameter, Store().DeleteRecord(handle_, record));
  EXPECT_EQ(StoreError::kInvalidParameter,
            Store().Write(handle_, record, Values({Property::I2(kKey, 1)})).error);
}

TEST_P(SeekTest, ByValueRising) {
  Fill(kByKey);
  struct Row {
    SeekTarget::Kind kind;
    std::int16_t key;
    ObjectId found;  // 0: the end
  };
  for (const Row row :
       {Row{kFirstEqual, 10, ten_}, Row{kFirstEqual, 20, twenty_[0]}, Row{kFirstEqual, 30, thirty_},
        Row{kFirstEqual, 15, 0}, Row{kFirstEqual, 5, 0}, Row{kFirstEqual, 35, 0},
        Row{kSmaller, 10, 0}, Row{kSmaller, 5, 0}, Row{kSmaller, 15, ten_}, Row{kSmaller, 20, ten_},
        Row{kSmaller, 25, twenty_[0]}, Row{kSmaller, 30, twenty_[0]}, Row{kSmaller, 99, thirty_},
        Row{kGreater, 5, ten_}, Row{kGreater, 10, ten_}, Row{kGreater, 15, twenty_[0]},
        Row{kGreater, 30, thirty_}, Row{kGreater, 31, 0}}) {
    SCOPED_TRACE(testing::Message() << static_cast<int>(row.kind) << " " << row.key);
    EXPECT_EQ(row.found, SeekKey(row.kind, row.key).value);
    EXPECT_EQ(row.found == 0, AtEnd());
  }
}

TEST_P(SeekTest, ByValueFalling) {
  SortOrder falling = kByKey;
  falling.descending = true;
  Fill(falling);
  EXPECT_EQ(thirty_, SeekKey(kSmaller, 20).value) << "30 comes before 20 in this order";
  EXPECT_EQ(twenty_[0], SeekKey(kSmaller, 15).value);
  EXPECT_EQ(0U, SeekKey(kSmaller, 30).value);
  EXPECT_EQ(twenty_[0], SeekKey(kGreater, 25).value);
  EXPECT_EQ(0U, SeekKey(kGreater, 9).value);
  EXPECT_EQ(twenty_[0], SeekKey(kFirstEqual, 20).value);
}

TEST_P(SeekTest, UnknownRecordsAreNoValues) {
  SortOrder unknown_first = kByKey;
  unknown_first.unknown_first = true;
  Fill(unknown_first);
  EXPECT_EQ(none_, Seek(SeekTarget::To(kBeginning)).value);
  EXPECT_EQ(0U, SeekKey(kSmaller, 10).value);
  EXPECT_EQ(ten_, SeekKey(kGreater, -32768).value);
  EXPECT_EQ(0U, SeekKey(kGreater, 31).value);
}

TEST_P(SeekTest, NextEqualWalksTheEqualOnes) {
  Fill(kByKey);
  EXPECT_EQ(twenty_[0], SeekKey(kFirstEqual, 20).value);
  EXPECT_EQ(twenty_[1], SeekKey(kNextEqual, 20).value);
  EXPECT_EQ(2U, index_);
  EXPECT_EQ(twenty_[2], SeekKey(kNextEqual, 20).value);
  EXPECT_EQ(StoreError::kNoMoreItems, SeekKey(kNextEqual, 20).error);
  EXPECT_TRUE(AtEnd());
  EXPECT_EQ(StoreError::kNoMoreItems, SeekKey(kNextEqual, 20).error);
}

TEST_P(SeekTest, NextEqualLooksOneRecordOnAndNoFurther) {
  Fill(kByKey);
  Seek(SeekTarget::ToObject(ten_));
  EXPECT_EQ(0U, SeekKey(kNextEqual, 30).value);
  Seek(SeekTarget::ToObject(ten_));
  EXPECT_EQ(twenty_[0], SeekKey(kNextEqual, 20).value);
  Seek(SeekTarget::ToObject(thirty_));
  EXPECT_EQ(0U, SeekKey(kNextEqual, 0).value) << "the next record has no key";
}

TEST_P(SeekTest, ValuesOfAnotherPropertyAreRefusedAndThePointerStays) {
  Fill(kByKey);
  Seek(SeekTarget::ToObject(thirty_));
  for (const SeekTarget::Kind kind : {kSmaller, kFirstEqual, kGreater, kNextEqual}) {
    for (const Property& value : {Property::I2(kOther, 1), Property::I4(kKey, 20), Property()}) {
      EXPECT_EQ(StoreError::kInvalidParameter, Seek(SeekTarget::ToValue(kind, value)).error);
      EXPECT_EQ(thirty_, Current(handle_));
    }
  }
}

TEST_P(SeekTest, ByValueNeedsAnOrder) {
  database_ = Store().CreateDatabase(u"plain", 0, {}).value;
  handle_ = Open(kNoSort);
  AddKey(handle_, 1);
  EXPECT_EQ(StoreError::kInvalidParameter, SeekKey(kFirstEqual, 1).error);
  EXPECT_EQ(StoreError::kInvalidParameter,
            Seek(SeekTarget::ToValue(kFirstEqual, Property())).error);
}

TEST_P(SeekTest, ReadingStaysOrGoesOnAsOpened) {
  Fill(kByKey);
  const StoreHandle staying = Open(kByKey.property);
  EXPECT_EQ(ten_, Store().Read(staying).value.id);
  EXPECT_EQ(ten_, Store().Read(staying).value.id);

  const StoreHandle going = Open(kByKey.property, true);
  EXPECT_EQ(ten_, Store().Peek(going).value.id);
  for (const ObjectId record : {ten_, twenty_[0], twenty_[1], twenty_[2], thirty_, none_}) {
    EXPECT_EQ(record, Store().Read(going).value.id);
  }
  EXPECT_EQ(StoreError::kNoMoreItems, Store().Peek(going).error);
  EXPECT_EQ(StoreError::kNoMoreItems, Store().Read(going).error);
}

TEST_P(SeekTest, NextEqualAfterAnIncrementingReadSkipsOne) {
  // Compatibility: the read has moved the pointer already, and the seek moves it again.
  Fill(kByKey, true);
  SeekKey(kFirstEqual, 20);
  EXPECT_EQ(twenty_[0], Store().Read(handle_).value.id);
  EXPECT_EQ(twenty_[2], SeekKey(kNextEqual, 20).value);
}

TEST_P(SeekTest, AWriteLeavesThePointerOnItsRecord) {
  Fill(kByKey);
  EXPECT_EQ(twenty_[2], Current(handle_));
  Store().Write(handle_, ten_, Values({Property::I2(kOther, 5)}));
  EXPECT_EQ(ten_, Current(handle_));
  Store().Write(handle_, ten_, Values({Property::I2(kKey, 25)}));
  EXPECT_EQ(ten_, Current(handle_));
  EXPECT_EQ(thirty_, Seek(SeekTarget::To(kCurrent, 1)).value) << "its place is a new one";
}

TEST_P(SeekTest, LongStringsAreFoundPastTheirFirstCharacters) {
  const SortOrder by_name = {.property = PropertyId(9, PropertyType::kString)};
  handle_ = Make(by_name);
  const auto add = [&](std::u16string_view name) {
    return Add(handle_, {Property::String(9, name)});
  };
  const ObjectId station_b = add(u"STATION-B");
  const ObjectId station_a = add(u"STATION-A");
  const ObjectId station = add(u"STATION");
  const ObjectId station_a_again = add(u"STATION-A");
  const auto seek = [&](SeekTarget::Kind kind, std::u16string_view name) {
    return Seek(SeekTarget::ToValue(kind, Property::String(9, name))).value;
  };
  EXPECT_EQ((std::vector{station, station_a, station_a_again, station_b}), Walk(handle_));
  EXPECT_EQ(station_a, seek(kFirstEqual, u"STATION-A"));
  EXPECT_EQ(station_a_again, seek(kNextEqual, u"STATION-A"));
  EXPECT_EQ(0U, seek(kFirstEqual, u"STATION-"));
  EXPECT_EQ(station_a, seek(kSmaller, u"STATION-B"));
  EXPECT_EQ(station_a, seek(kGreater, u"STATION-"));
  EXPECT_EQ(0U, seek(kSmaller, u"STAT"));
}

TAVIX_STORE_TESTS(SeekTest);

}  // namespace
}  // namespace tavix
