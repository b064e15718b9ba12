// Records that are deleted, or move, under the seek pointers of open handles.
#include "tests/platform/objectstore/store_fixture.h"

namespace tavix {
namespace {

constexpr SortOrder kByKey = {.property = PropertyId(111, PropertyType::kI2)};

class DeleteTest : public StoreTest {
 protected:
  void SetUp() override {
    handle_ = Make(kByKey);
    for (std::size_t i = 0; i < records_.size(); ++i) {
      records_[i] = AddKey(handle_, static_cast<std::int16_t>(i < 4 ? 7 : 9));
    }
  }
  void Delete(std::size_t i) {
    EXPECT_EQ(StoreError::kNone, Store().DeleteRecord(handle_, records_[i]));
  }
  ObjectId Seek(StoreHandle handle, const SeekTarget& target) {
    return Store().Seek(handle, target, nullptr).value;
  }
  ObjectId NextSeven(StoreHandle handle) {
    return Seek(handle, SeekTarget::ToValue(kNextEqual, Property::I2(kKey, 7)));
  }

  StoreHandle handle_ = 0;
  std::array<ObjectId, 6> records_{};
};

TEST_P(DeleteTest, ADeletedRecordCannotBeReadAndTheWalkGoesOnBehindIt) {
  Seek(handle_, SeekTarget::ToObject(records_[1]));
  Delete(1);
  EXPECT_EQ(StoreError::kDeleted, Store().Read(handle_).error);
  EXPECT_EQ(StoreError::kDeleted, Store().Seek(handle_, SeekTarget::To(kCurrent), nullptr).error);
  EXPECT_EQ(StoreError::kDeleted, Store().Read(handle_).error);
  EXPECT_EQ(records_[2], Seek(handle_, SeekTarget::To(kCurrent, 1)));
}

TEST_P(DeleteTest, StepsFromADeletedRecordCountItsNeighbours) {
  struct Row {
    std::int64_t step;
    std::size_t to;  // 6: the end
  };
  for (const Row row : {Row{1, 3}, Row{2, 4}, Row{3, 5}, Row{4, 6}, Row{-1, 1}, Row{-2, 0}}) {
    DeleteTest::Store().Close(handle_);
    Store().DeleteDatabase(database_);
    SetUp();
    Seek(handle_, SeekTarget::ToObject(records_[2]));
    Delete(2);
    EXPECT_EQ(row.to == 6 ? 0 : records_[row.to],
              Seek(handle_, SeekTarget::To(kCurrent, row.step)));
  }
}

TEST_P(DeleteTest, AllEqualOnesCanBeDeletedWhileWalking) {
  Outcome<ObjectId> record =
      Store().Seek(handle_, SeekTarget::ToValue(kFirstEqual, Property::I2(kKey, 7)), nullptr);
  int deleted = 0;
  while (record) {
    EXPECT_EQ(StoreError::kNone, Store().DeleteRecord(handle_, record.value));
    ++deleted;
    record = Store().Seek(handle_, SeekTarget::ToValue(kNextEqual, Property::I2(kKey, 7)), nullptr);
  }
  EXPECT_EQ(4, deleted);
  EXPECT_EQ((std::vector{records_[4], records_[5]}), Walk(handle_));
}

TEST_P(DeleteTest, AnIncrementingHandleGoesOnByItself) {
  const StoreHandle going = Open(kByKey.property, true);
  Seek(going, SeekTarget::ToObject(records_[4]));
  Delete(4);
  EXPECT_EQ(records_[5], Store().Read(going).value.id);
  Seek(going, SeekTarget::ToObject(records_[5]));
  Delete(5);
  EXPECT_EQ(StoreError::kNoMoreItems, Store().Read(going).error);
}

TEST_P(DeleteTest, TheLastRecordOfTheOrderMayGo) {
  Seek(handle_, SeekTarget::ToObject(records_[5]));
  Delete(5);
  EXPECT_EQ(StoreError::kDeleted, Store().Read(handle_).error);
  EXPECT_EQ(records_[4], Seek(handle_, SeekTarget::To(kCurrent, -1)));
  Delete(4);
  EXPECT_EQ(0U, Seek(handle_, SeekTarget::To(kCurrent, 1)));
  EXPECT_EQ(StoreError::kNoMoreItems, Store().Read(handle_).error);
}

TEST_P(DeleteTest, DeletesInARowKeepThePlace) {
  const StoreHandle watching = Open(kByKey.property);
  Seek(watching, SeekTarget::ToObject(records_[1]));
  Delete(1);
  Delete(2);
  Delete(3);
  EXPECT_EQ(StoreError::kDeleted, Store().Read(watching).error);
  EXPECT_EQ(records_[4], Seek(watching, SeekTarget::To(kCurrent, 1)));
}

TEST_P(DeleteTest, OtherRecordsMayGoWithoutMovingThePointer) {
  Seek(handle_, SeekTarget::ToObject(records_[2]));
  Delete(0);
  Delete(3);
  EXPECT_EQ(records_[2], Current(handle_));
  EXPECT_EQ(0U, NextSeven(handle_));
}

TEST_P(DeleteTest, APointerFollowsItsRecordToItsNewPlace) {
  const StoreHandle watching = Open(kByKey.property);
  Seek(watching, SeekTarget::ToObject(records_[0]));
  Store().Write(handle_, records_[0], Values({Property::I2(kKey, 8)}));
  EXPECT_EQ(records_[0], Current(watching));
  EXPECT_EQ(records_[4], Seek(watching, SeekTarget::To(kCurrent, 1)));
}

TEST_P(DeleteTest, APlaceStaysWhenTheRecordBehindItMoves) {
  const StoreHandle watching = Open(kByKey.property);
  Seek(watching, SeekTarget::ToObject(records_[1]));
  Delete(1);
  Store().Write(handle_, records_[2], Values({Property::I2(kKey, 100)}));
  EXPECT_EQ(records_[3], Seek(watching, SeekTarget::To(kCurrent, 1)));
}

TEST_P(DeleteTest, ARecordThatGetsAKeyAgainStandsAsOldAsItIs) {
  Store().Write(handle_, records_[1], Values({Property::I2(kKey, 50)}));
  Store().Write(handle_, records_[1], Values({Property::I2(kKey, 7)}));
  EXPECT_EQ(std::vector(records_.begin(), records_.end()), Walk(handle_));
}

TEST_P(DeleteTest, ARecordThatLosesItsKeyGoesToTheUnknownOnes) {
  Store().Write(handle_, records_[0],
                Values({Property::Removal(kByKey.property), Property::I2(kOther, 1)}));
  EXPECT_EQ(records_[0], Walk(handle_).back());
}

TEST_P(DeleteTest, TwoHandlesHavePointersOfTheirOwn) {
  const StoreHandle other = Open(kByKey.property);
  Seek(handle_, SeekTarget::ToObject(records_[3]));
  EXPECT_EQ(records_[0], Current(other));
  Delete(3);
  EXPECT_EQ(StoreError::kDeleted, Store().Read(handle_).error);
  EXPECT_EQ(records_[0], Current(other));
  EXPECT_EQ(StoreError::kInvalidParameter, Store().DeleteRecord(other, records_[3]));
}

TEST_P(DeleteTest, AHandleSeesWhatAnotherAdds) {
  const StoreHandle other = Open(kByKey.property);
  Seek(other, SeekTarget::ToObject(records_[3]));
  const ObjectId added = AddKey(handle_, 7);
  EXPECT_EQ(added, NextSeven(other));
}

TEST_P(DeleteTest, IdentifiersAreNeverUsedAgain) {
  std::vector<ObjectId> seen(records_.begin(), records_.end());
  seen.push_back(database_);
  for (int i = 0; i < 3000; ++i) {
    const ObjectId record = AddKey(handle_, 1);
    EXPECT_GT(record, seen.back());
    seen.push_back(record);
    EXPECT_EQ(StoreError::kNone, Store().DeleteRecord(handle_, record));
    EXPECT_EQ(StoreError::kNotFound, Store().Info(record).error);
  }
  Store().Close(handle_);
  EXPECT_EQ(StoreError::kNone, Store().DeleteDatabase(database_));
  EXPECT_GT(Store().CreateDatabase(u"test", 0, {}).value, seen.back());
  for (const ObjectId old : records_) EXPECT_EQ(StoreError::kNotFound, Store().Info(old).error);
}

TAVIX_STORE_TESTS(DeleteTest);

}  // namespace
}  // namespace tavix
