// Tests of calls on device databases that fail.
#pragma once

#include "platform/framework/database/device_store.h"
#include "platform/objectstore/failing_store.h"
#include "platform/objectstore/memory_store.h"
#include "tests/support/library_test.h"

namespace tavix::test {

using Operation = FailingStore::Operation;

// The device's databases fail where `store_` was asked to. They work again when the instances end.
class FailingDatabasesTest : public InstanceTest {
 protected:
  FailingDatabasesTest() : before_(SetDeviceStore(&store_)) {}
  ~FailingDatabasesTest() override { SetDeviceStore(before_); }

  void TearDown() override {
    for (const Operation each :
         {Operation::kCreate, Operation::kDelete, Operation::kFind, Operation::kOpen,
          Operation::kSeek, Operation::kRead, Operation::kWrite, Operation::kDeleteRecord}) {
      store_.Pass(each);
    }
    LibraryTest::TearDown();
  }

  MemoryStore memory_;
  FailingStore store_{memory_};

 private:
  ObjectStore* before_;
};

}  // namespace tavix::test
