// The store behind the calls: the process's own, or an installed one.
#include <wcedb.h>

#include "tests/platform/framework/database/fresh_store.h"

namespace {

using tavix::FailingStore;
using tavix::StoreError;

TEST(DeviceStore, TheProcessHasOneOfItsOwnThatFoldsCaseAsTheSystemDoes) {
  tavix::ObjectStore* own = &DeviceStore();
  tavix::MemoryStore other;
  EXPECT_EQ(own, SetDeviceStore(&other));
  EXPECT_EQ(&other, &DeviceStore());
  EXPECT_EQ(&other, SetDeviceStore(nullptr));
  EXPECT_EQ(own, &DeviceStore());

  CCeDBDatabase database;
  CCeDBProp by_name(CCeDBProp::Type_String, 1, CCeDBProp::Sort_CaseInsensitive);
  database.Create(L"folding", 0, 1, &by_name);
  ASSERT_TRUE(database.Open(L"folding", &by_name));
  CCeDBProp name(L"Тｏкио é", 1);
  CCeDBRecord record;
  record.AddProp(&name);
  const CEOID added = database.AddRecord(&record);
  EXPECT_EQ(added, database.SeekFirstEqual(CCeDBProp(L"тＯКИО É", 1)));
  EXPECT_EQ(0U, database.SeekFirstEqual(CCeDBProp(L"тＯКИО E", 1)));
  EXPECT_TRUE(database.Delete());
}

class FailingCalls : public FreshStore {
 protected:
  void SetUp() override {
    CCeDBProp by_line(CCeDBProp::Type_Short, 111);
    database_.m_bAutoSeekNext = FALSE;
    database_.Create(L"lines", 0, 1, &by_line);
    ASSERT_TRUE(database_.Open(L"lines"));
    ASSERT_NE(0U, AddLine(1));
    ASSERT_NE(0U, AddLine(2));
    second_ = database_.GetCurrRecord();
  }
  CEOID AddLine(short line) {
    CCeDBProp prop(line, 111);
    CCeDBRecord record;
    record.AddProp(&prop);
    return database_.AddRecord(&record);
  }

  CCeDBDatabase database_;
  CEOID second_ = 0;
};

TEST_F(FailingCalls, EveryFailureReachesTheCallerWithItsReason) {
  store_.Fail(FailingStore::Operation::kCreate, StoreError::kFull);
  store_.Fail(FailingStore::Operation::kFind, StoreError::kNotFound);
  store_.Fail(FailingStore::Operation::kDelete, StoreError::kInUse);
  store_.Fail(FailingStore::Operation::kChange, StoreError::kDuplicateName);
  store_.Fail(FailingStore::Operation::kOpenEnumeration, StoreError::kTooManyOpen);
  store_.Fail(FailingStore::Operation::kInfo, StoreError::kInUse);
  const BOOL failed = FALSE;
  CEOIDINFO info{};
  ExpectError(ERROR_DISK_FULL, database_.Create(L"new"), CEOID{0});
  ExpectError(ERROR_FILE_NOT_FOUND, CCeDBDatabase::Exists(L"lines"), failed);
  ExpectError(ERROR_SHARING_VIOLATION, CCeDBDatabase::Delete(CEOID{1}), failed);
  ExpectError(ERROR_DUP_NAME, database_.SetName(L"taken"), failed);
  ExpectError(ERROR_OUTOFMEMORY, CeFindFirstDatabase(0), INVALID_HANDLE_VALUE);
  ExpectError(ERROR_SHARING_VIOLATION, CeOidGetInfo(1, &info), failed);
  EXPECT_EQ(0U, database_.GetNumRecords());
}

TEST_F(FailingCalls, AWriteThatFailsLeavesTheCurrentRecord) {
  store_.Fail(FailingStore::Operation::kWrite, StoreError::kFull);
  ExpectError(ERROR_DISK_FULL, AddLine(3), CEOID{0});
  EXPECT_EQ(second_, database_.GetCurrRecord());
  EXPECT_EQ(2U, database_.GetNumRecords());
}

TEST_F(FailingCalls, ASeekThatCannotBeTriedLeavesTheCurrentRecord) {
  store_.Fail(FailingStore::Operation::kSeek, StoreError::kInvalidParameter);
  ExpectError(ERROR_INVALID_PARAMETER, database_.SeekFirst(), CEOID{0});
  EXPECT_EQ(second_, database_.GetCurrRecord());
  EXPECT_FALSE(database_.m_bEOF);
}

TEST_F(FailingCalls, AReadThatFailsLeavesTheRecordAlone) {
  CCeDBProp own(short{5}, 1);
  CCeDBRecord record;
  record.AddProp(&own);
  store_.Fail(FailingStore::Operation::kRead, StoreError::kDeleted);
  ExpectError(ERROR_KEY_DELETED, database_.ReadCurrRecord(&record), FALSE);
  EXPECT_EQ(1, record.GetNumProps());

  WORD count = 0;
  LPBYTE buffer = nullptr;
  DWORD size = 0;
  ExpectError(
      ERROR_KEY_DELETED,
      CeReadRecordProps(database_.m_hDatabase, CEDB_ALLOWREALLOC, &count, nullptr, &buffer, &size),
      CEOID{0});
  LocalFree(buffer);
}

TEST_F(FailingCalls, ADeletionThatFailsLeavesTheRecord) {
  store_.Fail(FailingStore::Operation::kDeleteRecord, StoreError::kInvalidParameter);
  ExpectError(ERROR_INVALID_PARAMETER, database_.DeleteCurrRecord(), FALSE);
  EXPECT_EQ(second_, database_.GetCurrRecord());
}

TEST_F(FailingCalls, AnOpeningThatFailsLeavesTheDatabaseClosed) {
  store_.Fail(FailingStore::Operation::kOpen, StoreError::kTooManyOpen);
  ExpectError(ERROR_OUTOFMEMORY, database_.Open(L"lines"), FALSE);
  EXPECT_FALSE(database_.IsOpen());
  store_.Pass(FailingStore::Operation::kOpen);
  EXPECT_TRUE(database_.Open(L"lines"));
}

}  // namespace
