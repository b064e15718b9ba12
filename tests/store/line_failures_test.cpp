// Line calls on a database that fails: each step has a code of its own.
#include <tavix/tavix.h>

#include <algorithm>

#include "tests/store/failing_databases_test.h"
#include "tests/support/device_records.h"

namespace tavix::test {
namespace {

class LineFailures : public FailingDatabasesTest {
 protected:
  void SetUp() override {
    FailingDatabasesTest::SetUp();
    Tavix_SelLinHan(101);
    ASSERT_EQ(0, Tavix_EntLin(1, 2));
    ASSERT_EQ(0, Tavix_EntLin(1, 3));
  }
};

TEST_F(LineFailures, ARecordThatCannotBeAdded) {
  store_.Fail(Operation::kWrite, StoreError::kFull);
  EXPECT_EQ(-1, Tavix_EntLin(1, 4));
  EXPECT_EQ(0, Tavix_EntLin(1, 3)) << "one that is there needs no room";
  store_.Pass(Operation::kWrite);
  EXPECT_EQ(0, Tavix_EntLin(1, 4));
  EXPECT_EQ(3, LinesOnDevice().back().id) << "a failed addition takes no number";
}

TEST_F(LineFailures, ADatabaseThatCannotBeSearched) {
  store_.Fail(Operation::kSeek, StoreError::kInvalidParameter);
  EXPECT_EQ(-4, Tavix_ChgLinHid(1, 2, 102));
  EXPECT_EQ(-4, Tavix_DelEntLin(1, 2));
}

TEST_F(LineFailures, ARecordThatCannotBeRead) {
  store_.Fail(Operation::kRead, StoreError::kDeleted);
  EXPECT_EQ(-5, Tavix_ChgLinHid(1, 2, 102));
  EXPECT_EQ(-5, Tavix_DelEntLin(1, 2));
}

TEST_F(LineFailures, ARecordThatCannotBeReadASecondTime) {
  store_.Fail(Operation::kRead, StoreError::kDeleted, 1);
  EXPECT_EQ(-3, Tavix_ChgLinHid(1, 2, 102));
}

TEST_F(LineFailures, ARecordThatCannotBeWritten) {
  store_.Fail(Operation::kWrite, StoreError::kFull);
  EXPECT_EQ(-1, Tavix_ChgLinHid(1, 2, 102));
  store_.Pass(Operation::kWrite);
  EXPECT_EQ(101, LinesOnDevice().front().legend);
}

TEST_F(LineFailures, ARecordThatCannotBeDeleted) {
  store_.Fail(Operation::kDeleteRecord, StoreError::kInUse);
  EXPECT_EQ(-7, Tavix_DelEntLin(1, 2));
  store_.Pass(Operation::kDeleteRecord);
  EXPECT_EQ(2U, LinesOnDevice().size());
  EXPECT_EQ(0, Tavix_DelEntLin(1, 2));
}

// Such a record is sorted behind all others, where a search that finds no match comes upon it.
TEST_F(LineFailures, ARecordWithoutTheSmallerKey) {
  TakePropertyOut(L"QZLinDB0", 112, CCeDBProp::Type_Short);
  EXPECT_EQ(0, Tavix_ChgLinHid(1, 3, 102));
  EXPECT_EQ(-6, Tavix_ChgLinHid(1, 9, 102));
  EXPECT_EQ(-6, Tavix_DelEntLin(1, 9));
}

TEST_F(LineFailures, ARecordWithoutTheLargerKey) {
  TakePropertyOut(L"QZLinDB0", 113, CCeDBProp::Type_Short);
  EXPECT_EQ(-7, Tavix_ChgLinHid(1, 2, 102));
  EXPECT_EQ(-7, Tavix_DelEntLin(1, 2));
}

TEST_F(LineFailures, ARecordWithoutALegend) {
  TakePropertyOut(L"QZLinDB0", 115, CCeDBProp::Type_Short);
  EXPECT_EQ(-4, Tavix_ChgLinHid(1, 2, 102));
  EXPECT_EQ(0, Tavix_ChgLinHid(1, 3, 102));
}

TEST_F(LineFailures, ADatabaseThatCannotBeMadeAnew) {
  store_.Fail(Operation::kCreate, StoreError::kFull, 0, 1);
  EXPECT_EQ(-1, Tavix_ClrEntLin());
  EXPECT_EQ(-2, Tavix_ChgLinHid(1, 2, 102)) << "there is none to open";
  EXPECT_EQ(-2, Tavix_DelEntLin(1, 2));
  EXPECT_EQ(-1, Tavix_EntLin(1, 2));
  EXPECT_EQ(0, Tavix_ClrEntLin()) << "made by the next attempt";
  EXPECT_EQ(0, Tavix_EntLin(1, 2));
  EXPECT_EQ(1U, LinesOnDevice().size());
}

TEST_F(LineFailures, ADatabaseThatCannotBeDeletedIsOpenedAgainAsItIs) {
  store_.Fail(Operation::kDelete, StoreError::kInUse, 0, 1);
  EXPECT_EQ(0, Tavix_ClrEntLin()) << "it is open again";
  EXPECT_EQ(2U, LinesOnDevice().size());
  EXPECT_EQ(0, Tavix_EntLin(1, 2)) << "still there";
  EXPECT_EQ(2U, LinesOnDevice().size());
  ASSERT_EQ(0, Tavix_EntLin(1, 4));
  const std::vector<LineRecord> lines = LinesOnDevice();
  EXPECT_EQ(2, std::count_if(lines.begin(), lines.end(),
                             [](const LineRecord& line) { return line.id == 1; }))
      << "ids start at 1 again";
  EXPECT_EQ(0, Tavix_ClrEntLin());
  EXPECT_TRUE(LinesOnDevice().empty()) << "deleted by the next attempt";
}

TEST_F(LineFailures, AnInstanceWithoutItsDatabase) {
  Tavix_Del();
  store_.Fail(Operation::kCreate, StoreError::kFull);
  ASSERT_EQ(0, Tavix_Crt());
  EXPECT_EQ(-2, Tavix_DelEntLin(1, 2));
  EXPECT_EQ(-2, Tavix_ChgLinHid(1, 2, 101));
  EXPECT_EQ(-1, Tavix_EntLin(1, 2));
  EXPECT_EQ(-1, Tavix_ClrEntLin());
  EXPECT_EQ(0, Tavix_Del());
}

TEST_F(LineFailures, ADatabaseThatCannotBeOpenedIsOpenedLater) {
  Tavix_Del();
  store_.Fail(Operation::kOpen, StoreError::kTooManyOpen);
  ASSERT_EQ(0, Tavix_Crt());
  EXPECT_EQ(-2, Tavix_DelEntLin(1, 2));
  EXPECT_EQ(-1, Tavix_EntLin(1, 2));
  store_.Pass(Operation::kOpen);
  EXPECT_EQ(0, Tavix_EntLin(1, 2));
  EXPECT_EQ(1U, LinesOnDevice().size());
}

// Points, points with a height, memos, lines: the first that fails ends the clearing.
TEST_F(LineFailures, EndTheClearingOfTheDrawing) {
  const struct {
    int databases_made;  // before one cannot be
    int code;
    std::size_t lines_left;
  } rows[] = {{0, 1, 2}, {1, -1, 0}};
  for (const auto& [made, code, lines_left] : rows) {
    ASSERT_EQ(0, Tavix_DrwClr());
    ASSERT_EQ(0, Tavix_EntLin(1, 2));
    ASSERT_EQ(0, Tavix_EntLin(1, 3));
    ASSERT_EQ(0, Tavix_EntPnt(1, 1, L"P", 1.0, 2.0));
    store_.Fail(Operation::kCreate, StoreError::kFull, made, 1);
    EXPECT_EQ(code, Tavix_DrwClr());
    double x = 0.0;
    double y = 0.0;
    EXPECT_EQ(-1, Tavix_GetPntCrd(1, &x, &y)) << "the points are gone";
    if (lines_left > 0) {
      EXPECT_EQ(lines_left, LinesOnDevice().size()) << "untouched";
    }
    store_.Pass(Operation::kCreate);
    EXPECT_EQ(0, Tavix_DrwClr());
    EXPECT_TRUE(LinesOnDevice().empty());
  }
}

}  // namespace
}  // namespace tavix::test
