// The reader of the databases sees what was written, and says when there is nothing to read.
#include "tests/support/device_records.h"

#include <gtest/gtest-spi.h>

#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

class DeviceRecords : public LibraryTest {
 protected:
  ~DeviceRecords() override { CCeDBDatabase::Delete(L"QZMemDB7"); }
};

TEST_F(DeviceRecords, AreReadInOrder) {
  CCeDBProp order(CCeDBProp::Type_Short, 121);
  CCeDBDatabase database;
  ASSERT_NE(0U, database.Create(L"QZMemDB7", 1, 1, &order));
  ASSERT_TRUE(database.Open(L"QZMemDB7"));
  for (const short key : {short{3}, short{-2}}) {
    CCeDBProp properties[] = {CCeDBProp(key, 121), CCeDBProp(L"text", 122)};
    CCeDBRecord record;
    record.AddProps(properties, 2);
    ASSERT_NE(0U, database.AddRecord(&record));
  }
  EXPECT_EQ((std::vector<MemoRecord>{{-2, L"text"}, {3, L"text"}}), MemosOnDevice(7));
  TakePropertyOut(L"QZMemDB7", 122, CCeDBProp::Type_String);
  EXPECT_EQ((std::vector<MemoRecord>{{-2, L"(none)"}, {3, L"text"}}), MemosOnDevice(7));
}

TEST_F(DeviceRecords, OfAMissingDatabaseAreAFailure) {
  EXPECT_NONFATAL_FAILURE(EXPECT_TRUE(LinesOnDevice(7).empty()), "no such database");
}

}  // namespace
}  // namespace tavix::test
