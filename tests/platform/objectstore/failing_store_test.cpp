// The failing store fails the calls it was asked to fail, and no others.
#include <functional>

#include "tests/platform/objectstore/store_fixture.h"

namespace tavix {
namespace {

using Operation = FailingStore::Operation;

struct FailingStoreTest : testing::Test {
  FailingStoreTest() {
    const SortOrder order = {.property = PropertyId(1, PropertyType::kI2)};
    database = memory.CreateDatabase(u"db", 0, {&order, 1}).value;
    handle = memory.Open(database, order.property, false).value;
    record = memory.Write(handle, 0, {&value, 1}).value;
    walk = memory.OpenEnumeration(0).value;
  }

  const Property value = Property::I2(1, 5);
  MemoryStore memory;
  FailingStore failing{memory};
  ObjectId database = 0;
  StoreHandle handle = 0;
  ObjectId record = 0;
  StoreHandle walk = 0;
};

TEST_F(FailingStoreTest, EveryOperationFailsAloneAndDoesNotReachTheStore) {
  struct Row {
    Operation operation;
    std::function<StoreError()> call;
  };
  const std::vector<Row> rows = {
      {Operation::kCreate, [&] { return failing.CreateDatabase(u"new", 0, {}).error; }},
      {Operation::kFind, [&] { return failing.FindDatabase(u"db").error; }},
      {Operation::kInfo, [&] { return failing.Info(database).error; }},
      {Operation::kInfo, [&] { return failing.Changes(database).error; }},
      {Operation::kOpen, [&] { return failing.Open(database, kNoSort, false).error; }},
      {Operation::kOpenEnumeration, [&] { return failing.OpenEnumeration(0).error; }},
      {Operation::kNextDatabase, [&] { return failing.NextDatabase(walk).error; }},
      {Operation::kSeek,
       [&] { return failing.Seek(handle, SeekTarget::To(kBeginning), nullptr).error; }},
      {Operation::kRead, [&] { return failing.Read(handle).error; }},
      {Operation::kPeek, [&] { return failing.Peek(handle).error; }},
      {Operation::kWrite,
       [&] {
         return failing.Write(handle, 0, {&value, 1}).error;
       }},
      {Operation::kDeleteRecord, [&] { return failing.DeleteRecord(handle, record); }},
      {Operation::kClose, [&] { return failing.Close(handle); }},
      {Operation::kChange,
       [&] { return failing.ChangeDatabase(database, {.orders = std::span<const SortOrder>()}); }},
      {Operation::kDelete, [&] { return failing.DeleteDatabase(database); }},
  };
  for (const Row& failed : rows) failing.Fail(failed.operation, StoreError::kFull);
  for (const Row& row : rows) EXPECT_EQ(StoreError::kFull, row.call());
  EXPECT_EQ(1U, memory.Info(database).value.database.record_count);
  EXPECT_EQ(StoreError::kNotFound, memory.FindDatabase(u"new").error);

  failing.Pass(Operation::kOpen);
  EXPECT_EQ(StoreError::kFull, failing.Close(failing.Open(database, kNoSort, false).value));
  failing.Pass(Operation::kOpen);
  memory.Close(memory.Open(database, kNoSort, false).value);
  // One handle was left open by the failed close above.
  for (const Row& row : rows) {
    failing.Pass(row.operation);
    const StoreError expected =
        row.operation == Operation::kChange || row.operation == Operation::kDelete
            ? StoreError::kInUse
            : StoreError::kNone;
    EXPECT_EQ(expected, row.call()) << static_cast<int>(row.operation);
    EXPECT_GE(failing.Calls(row.operation), 2);
  }
}

TEST_F(FailingStoreTest, AFailureComesAfterSomeCallsAndForSomeCalls) {
  failing.Fail(Operation::kRead, StoreError::kDeleted, 2, 1);
  std::vector<bool> passed;
  for (int i = 0; i < 5; ++i) passed.push_back(static_cast<bool>(failing.Read(handle)));
  EXPECT_EQ((std::vector{true, true, false, true, true}), passed);
  EXPECT_EQ(5, failing.Calls(Operation::kRead));
  EXPECT_EQ(0, failing.Calls(Operation::kWrite));
}

}  // namespace
}  // namespace tavix
