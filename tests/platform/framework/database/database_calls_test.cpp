// The calls on whole databases.
#include <string>

#include "tests/platform/framework/database/fresh_store.h"

namespace {

using DatabaseCalls = FreshStore;

CEDBASEINFO InfoOf(CEOID oid) {
  CEOIDINFO info{};
  EXPECT_TRUE(CeOidGetInfo(oid, &info));
  EXPECT_EQ(OBJTYPE_DATABASE, info.wObjType);
  return info.infDatabase;
}

TEST_F(DatabaseCalls, ACreatedDatabaseTellsWhatItWasMadeOf) {
  SORTORDERSPEC sortings[] = {
      {kLineId, 0},
      {kPointId, CEDB_SORT_DESCENDING | CEDB_SORT_UNKNOWNFIRST},
      {static_cast<CEPROPID>(MAKELONG(CEVT_LPWSTR, 5)), CEDB_SORT_CASEINSENSITIVE}};
  const CEOID oid = CeCreateDatabase(Name(L"lines"), 77, 3, sortings);
  ASSERT_NE(0U, oid);
  const CEDBASEINFO info = InfoOf(oid);
  EXPECT_STREQ(L"lines", info.szDbaseName);
  EXPECT_EQ(77U, info.dwDbaseType);
  EXPECT_EQ(0, info.wNumRecords);
  EXPECT_EQ(0U, info.dwSize);
  ASSERT_EQ(3, info.wNumSortOrder);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(sortings[i].propid, info.rgSortSpecs[i].propid);
    EXPECT_EQ(sortings[i].dwFlags, info.rgSortSpecs[i].dwFlags);
  }
  FILETIME now;
  GetSystemTimeAsFileTime(&now);
  EXPECT_LE(CompareFileTime(&info.ftLastModified, &now), 0);
  EXPECT_NE(0U, info.ftLastModified.dwHighDateTime);
}

TEST_F(DatabaseCalls, ADatabaseThatCannotBeIsRefusedWithItsReason) {
  SORTORDERSPEC blob = {static_cast<CEPROPID>(MAKELONG(CEVT_BLOB, 1)), 0};
  SORTORDERSPEC five[5] = {
      {kLineId, 0}, {kPointId, 0}, {0x00010002, 0}, {0x00020002, 0}, {0x00030002, 0}};
  const CEOID none = 0;
  ExpectError(ERROR_INVALID_PARAMETER, CeCreateDatabase(nullptr, 0, 0, nullptr), none);
  ExpectError(ERROR_INVALID_PARAMETER, CeCreateDatabase(Name(L""), 0, 0, nullptr), none);
  ExpectError(ERROR_INVALID_PARAMETER, CeCreateDatabase(Name(L"x"), 0, 1, nullptr), none);
  ExpectError(ERROR_INVALID_PARAMETER, CeCreateDatabase(Name(L"x"), 0, 1, &blob), none);
  ExpectError(ERROR_INVALID_PARAMETER, CeCreateDatabase(Name(L"x"), 0, 5, five), none);
  EXPECT_NE(CeCreateDatabase(Name(L"x"), 0, 4, five), none);
  ExpectError(ERROR_DUP_NAME, CeCreateDatabase(Name(L"x"), 0, 0, nullptr), none);
}

TEST_F(DatabaseCalls, APlaceholderOrderIsNone) {
  SORTORDERSPEC generic = {0, CEDB_SORT_GENERICORDER};
  const CEOID oid = CeCreateDatabase(Name(L"plain"), 0, 1, &generic);
  EXPECT_EQ(0, InfoOf(oid).wNumSortOrder);
}

TEST_F(DatabaseCalls, LongNamesAreCutWhereTheyAreMadeAndWhereTheyAreLookedFor) {
  const std::wstring longest(CEDB_MAXDBASENAMELEN - 1, L'n');
  const std::wstring longer = longest + L"tail";
  const CEOID oid = CeCreateDatabase(Name(longer.c_str()), 0, 0, nullptr);
  EXPECT_EQ(longest, InfoOf(oid).szDbaseName);
  CEOID found = 0;
  EXPECT_TRUE(CeCloseDatabaseHandle(CeOpenDatabase(&found, Name(longer.c_str()), 0, 0, nullptr)));
  EXPECT_EQ(oid, found);
}

TEST_F(DatabaseCalls, OpeningIsByNameOrByIdentifier) {
  const CEOID oid = CeCreateDatabase(Name(L"db"), 0, 0, nullptr);
  CEOID by_name = 0;
  const HANDLE first = CeOpenDatabase(&by_name, Name(L"db"), 0, 0, nullptr);
  ASSERT_NE(INVALID_HANDLE_VALUE, first);
  EXPECT_EQ(oid, by_name);
  CEOID by_id = oid;
  const HANDLE second = CeOpenDatabase(&by_id, nullptr, 0, 0, nullptr);
  ASSERT_NE(INVALID_HANDLE_VALUE, second);
  EXPECT_NE(second, first);
  EXPECT_TRUE(CeCloseDatabaseHandle(first));
  EXPECT_TRUE(CeCloseDatabaseHandle(second));
}

TEST_F(DatabaseCalls, OpeningFailsWithItsReason) {
  CEOID oid = 0;
  ExpectError(ERROR_INVALID_PARAMETER, CeOpenDatabase(nullptr, Name(L"db"), 0, 0, nullptr),
              INVALID_HANDLE_VALUE);
  ExpectError(ERROR_FILE_NOT_FOUND, CeOpenDatabase(&oid, Name(L"db"), 0, 0, nullptr),
              INVALID_HANDLE_VALUE);
  ExpectError(ERROR_FILE_NOT_FOUND, CeOpenDatabase(&oid, nullptr, 0, 0, nullptr),
              INVALID_HANDLE_VALUE);
  CeCreateDatabase(Name(L"db"), 0, 0, nullptr);
  ExpectError(ERROR_INVALID_PARAMETER, CeOpenDatabase(&oid, Name(L"db"), kLineId, 0, nullptr),
              INVALID_HANDLE_VALUE);
  EXPECT_EQ(0U, oid) << "only a database that opened is named";
  oid = 999;
  ExpectError(ERROR_INVALID_PARAMETER, CeOpenDatabase(&oid, nullptr, 0, 0, nullptr),
              INVALID_HANDLE_VALUE);
}

TEST_F(DatabaseCalls, AHandleIsClosedOnceAndIsNoSystemHandle) {
  CeCreateDatabase(Name(L"db"), 0, 0, nullptr);
  CEOID oid = 0;
  const HANDLE handle = CeOpenDatabase(&oid, Name(L"db"), 0, 0, nullptr);
  EXPECT_FALSE(CloseHandle(handle));
  EXPECT_TRUE(CeCloseDatabaseHandle(handle));
  ExpectError(ERROR_INVALID_PARAMETER, CeCloseDatabaseHandle(handle), FALSE);
  ExpectError(ERROR_INVALID_PARAMETER, CeCloseDatabaseHandle(nullptr), FALSE);
  ExpectError(ERROR_INVALID_PARAMETER, CeCloseDatabaseHandle(INVALID_HANDLE_VALUE), FALSE);
}

TEST_F(DatabaseCalls, AnOpenDatabaseIsNotDeleted) {
  CEOID oid = CeCreateDatabase(Name(L"db"), 0, 0, nullptr);
  const HANDLE handle = CeOpenDatabase(&oid, nullptr, 0, 0, nullptr);
  ExpectError(ERROR_SHARING_VIOLATION, CeDeleteDatabase(oid), FALSE);
  CeCloseDatabaseHandle(handle);
  EXPECT_TRUE(CeDeleteDatabase(oid));
  ExpectError(ERROR_INVALID_PARAMETER, CeDeleteDatabase(oid), FALSE);
}

TEST_F(DatabaseCalls, InfoTellsRecordsFromDatabasesAndFailsForTheRest) {
  CEOID oid = CeCreateDatabase(Name(L"db"), 0, 0, nullptr);
  const HANDLE handle = CeOpenDatabase(&oid, nullptr, 0, 0, nullptr);
  CEPROPVAL value = Short(1, 2);
  const CEOID record = CeWriteRecordProps(handle, 0, 1, &value);
  CEOIDINFO info{};
  ASSERT_TRUE(CeOidGetInfo(record, &info));
  EXPECT_EQ(OBJTYPE_RECORD, info.wObjType);
  EXPECT_EQ(oid, info.infRecord.oidParent);
  EXPECT_EQ(1, InfoOf(oid).wNumRecords);
  EXPECT_EQ(2U, InfoOf(oid).dwSize);
  ExpectError(ERROR_INVALID_HANDLE, CeOidGetInfo(0, &info), FALSE);
  ExpectError(ERROR_INVALID_HANDLE, CeOidGetInfo(record + 1, &info), FALSE);
  ExpectError(ERROR_INVALID_PARAMETER, CeOidGetInfo(oid, nullptr), FALSE);
}

TEST_F(DatabaseCalls, MoreRecordsThanAWordCountsAreManyRecords) {
  CEOID oid = CeCreateDatabase(Name(L"db"), 0, 0, nullptr);
  const HANDLE handle = CeOpenDatabase(&oid, nullptr, 0, 0, nullptr);
  CEPROPVAL value = Short(1, 2);
  for (int i = 0; i < 65536; ++i) CeWriteRecordProps(handle, 0, 1, &value);
  EXPECT_EQ(65535, InfoOf(oid).wNumRecords);
}

TEST_F(DatabaseCalls, SettingChangesWhatIsCalledValidAndNothingElse) {
  CEOID oid = CeCreateDatabase(Name(L"db"), 1, 0, nullptr);
  CEDBASEINFO info{};
  lstrcpyW(info.szDbaseName, L"renamed");
  info.dwDbaseType = 2;
  info.wNumSortOrder = 1;
  info.rgSortSpecs[0] = {kLineId, CEDB_SORT_DESCENDING};
  info.dwFlags = CEDB_VALIDTYPE;
  EXPECT_TRUE(CeSetDatabaseInfo(oid, &info));
  EXPECT_STREQ(L"db", InfoOf(oid).szDbaseName);
  EXPECT_EQ(2U, InfoOf(oid).dwDbaseType);
  EXPECT_EQ(0, InfoOf(oid).wNumSortOrder);
  info.dwFlags = CEDB_VALIDNAME | CEDB_VALIDSORTSPEC;
  EXPECT_TRUE(CeSetDatabaseInfo(oid, &info));
  EXPECT_STREQ(L"renamed", InfoOf(oid).szDbaseName);
  EXPECT_EQ(CEDB_SORT_DESCENDING, InfoOf(oid).rgSortSpecs[0].dwFlags);

  const HANDLE handle = CeOpenDatabase(&oid, nullptr, 0, 0, nullptr);
  ExpectError(ERROR_SHARING_VIOLATION, CeSetDatabaseInfo(oid, &info), FALSE);
  CeCloseDatabaseHandle(handle);
  CeCreateDatabase(Name(L"taken"), 1, 0, nullptr);
  lstrcpyW(info.szDbaseName, L"taken");
  ExpectError(ERROR_DUP_NAME, CeSetDatabaseInfo(oid, &info), FALSE);
  info.wNumSortOrder = 5;
  ExpectError(ERROR_INVALID_PARAMETER, CeSetDatabaseInfo(oid, &info), FALSE);
  ExpectError(ERROR_INVALID_PARAMETER, CeSetDatabaseInfo(oid, nullptr), FALSE);
  ExpectError(ERROR_INVALID_PARAMETER, CeSetDatabaseInfo(0, &info), FALSE);
}

TEST_F(DatabaseCalls, AWalkFindsEveryDatabaseOfATypeAndEndsWhenOneIsDeleted) {
  const CEOID a = CeCreateDatabase(Name(L"a"), 7, 0, nullptr);
  CeCreateDatabase(Name(L"b"), 8, 0, nullptr);
  const CEOID c = CeCreateDatabase(Name(L"c"), 7, 0, nullptr);
  const HANDLE walk = CeFindFirstDatabase(7);
  ASSERT_NE(INVALID_HANDLE_VALUE, walk);
  EXPECT_EQ(a, CeFindNextDatabase(walk));
  EXPECT_EQ(c, CeFindNextDatabase(walk));
  ExpectError(ERROR_NO_MORE_ITEMS, CeFindNextDatabase(walk), CEOID{0});
  CeDeleteDatabase(a);
  ExpectError(ERROR_KEY_DELETED, CeFindNextDatabase(walk), CEOID{0});
  EXPECT_TRUE(CeCloseDatabaseHandle(walk));
  ExpectError(ERROR_INVALID_PARAMETER, CeFindNextDatabase(walk), CEOID{0});
}

}  // namespace
