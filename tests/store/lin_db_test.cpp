// The line store on a database that fails.
#include "store/lin_db.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace tavix
