// Memo calls on a database that fails.
#include <tavix/tavix.h>

#include "tests/store/failing_databases_test.h"
#include "tests/support/device_records.h"

namespace tavix::test {
namespace {

class MemoFailures : public FailingDatabasesTest {
 protected:
  void SetUp() override {
    FailingDatabasesTest::SetUp();
    ASSERT_EQ(0, Tavix_EntPntMem(1, L"memo"));
  }

  static std::wstring Memo(int key) {
    CString memo = L"(untouched)";
    EXPECT_EQ(0, Tavix_GetPntMem(key, &memo)) << "whatever happens";
    return memo.GetString();
  }
};

TEST_F(MemoFailures, AMemoThatCannotBeAdded) {
  store_.Fail(Operation::kWrite, StoreError::kFull);
  EXPECT_EQ(-1, Tavix_EntPntMem(2, L"new"));
  EXPECT_EQ(L"", Memo(2));
}

TEST_F(MemoFailures, AMemoThatCannotBeWritten) {
  store_.Fail(Operation::kWrite, StoreError::kFull);
  EXPECT_EQ(-1, Tavix_EntPntMem(1, L"new"));
  EXPECT_EQ(L"memo", Memo(1));
}

TEST_F(MemoFailures, AMemoThatCannotBeRead) {
  store_.Fail(Operation::kRead, StoreError::kDeleted);
  EXPECT_EQ(-3, Tavix_EntPntMem(1, L"new"));
  EXPECT_EQ(L"", Memo(1));
  store_.Pass(Operation::kRead);
  EXPECT_EQ(L"memo", Memo(1));
}

TEST_F(MemoFailures, AMemoThatCannotBeDeleted) {
  store_.Fail(Operation::kDeleteRecord, StoreError::kInUse);
  EXPECT_EQ(-3, Tavix_EntPntMem(1, L""));
  EXPECT_EQ(L"memo", Memo(1));
}

TEST_F(MemoFailures, APointGoesThoughItsMemoStays) {
  ASSERT_EQ(0, Tavix_EntPnt(1, 1, L"P", 0.0, 0.0));
  store_.Fail(Operation::kDeleteRecord, StoreError::kInUse);
  EXPECT_EQ(0, Tavix_DelEntPnt(1));
  EXPECT_EQ(-1, Tavix_DelEntPnt(1));
  EXPECT_EQ(L"memo", Memo(1));
}

TEST_F(MemoFailures, ADatabaseThatCannotBeDeletedIsOpenedAgainAsItIs) {
  ASSERT_EQ(0, Tavix_EntPnt(1, 1, L"P", 0.0, 0.0));
  ASSERT_EQ(0, Tavix_EntLin(1, 2));
  store_.Fail(Operation::kDelete, StoreError::kInUse, 0, 1);
  EXPECT_EQ(0, Tavix_DrwClr()) << "it is open again: the clearing goes on";
  EXPECT_EQ(L"memo", Memo(1));
  EXPECT_TRUE(LinesOnDevice().empty());
  EXPECT_EQ(0, Tavix_DrwClr());
  EXPECT_TRUE(MemosOnDevice().empty()) << "deleted by the next attempt";
}

TEST_F(MemoFailures, ADatabaseThatCannotBeOpenedIsOpenedLater) {
  Tavix_Del();
  store_.Fail(Operation::kOpen, StoreError::kTooManyOpen);
  ASSERT_EQ(0, Tavix_Crt());
  EXPECT_EQ(-1, Tavix_EntPntMem(1, L"memo")) << "not found, and not added";
  EXPECT_EQ(L"", Memo(1));
  store_.Pass(Operation::kOpen);
  EXPECT_EQ(0, Tavix_EntPntMem(1, L"memo"));
  EXPECT_EQ((std::vector<MemoRecord>{{1, L"memo"}}), MemosOnDevice());
}

TEST_F(MemoFailures, ARecordWithoutATextReadsAsEmpty) {
  TakePropertyOut(L"QZMemDB0", 122, CCeDBProp::Type_String);
  EXPECT_EQ(L"", Memo(1));
  EXPECT_EQ(0, Tavix_EntPntMem(1, L""));
  EXPECT_TRUE(MemosOnDevice().empty());
}

}  // namespace
}  // namespace tavix::test
