// CCeDBDatabase and CCeDBEnum, as a store of lines and a store of memos use them.
#include <wcedb.h>

#include <vector>

#include "tests/platform/framework/database/fresh_store.h"

namespace {

class DatabaseClass : public FreshStore {
 protected:
  void SetUp() override {
    CCeDBProp orders[] = {by_line_, by_point_};
    ASSERT_NE(0U, database_.Create(L"lines", 42, 2, orders));
    ASSERT_TRUE(database_.Open(L"lines", &by_line_));
  }

  CEOID Add(short line, short point) {
    CCeDBProp props[] = {CCeDBProp(line, 111), CCeDBProp(point, 112), CCeDBProp(short{7}, 113)};
    CCeDBRecord record;
    record.AddProps(props, 3);
    return database_.AddRecord(&record);
  }
  short ReadLine() {
    CCeDBRecord record;
    if (!database_.ReadCurrRecord(&record)) return -1;
    return record.GetPropFromIdent(111)->GetShort();
  }

  CCeDBProp by_line_{CCeDBProp::Type_Short, 111};
  CCeDBProp by_point_{CCeDBProp::Type_Short, 112, CCeDBProp::Sort_Descending};
  CCeDBDatabase database_;
};

TEST_F(DatabaseClass, CreatingDoesNotOpenAndTellsTheTruth) {
  CCeDBDatabase other;
  EXPECT_NE(0U, other.Create(L"memos"));
  EXPECT_FALSE(other.IsOpen());
  EXPECT_TRUE(CCeDBDatabase::Exists(L"memos"));
  EXPECT_FALSE(CCeDBDatabase::Exists(L"none"));
  EXPECT_EQ(static_cast<DWORD>(ERROR_FILE_NOT_FOUND), GetLastError());
  ExpectError(ERROR_DUP_NAME, other.Create(L"memos"), CEOID{0});
  CCeDBProp five[5];
  ExpectError(ERROR_INVALID_PARAMETER, other.Create(L"more", 0, 5, five), CEOID{0});
  ExpectError(ERROR_INVALID_PARAMETER, other.Create(L"more", 0, 1, nullptr), CEOID{0});
}

TEST_F(DatabaseClass, TheOpenDatabaseTellsHowOftenItsRecordsChanged) {
  const ULONGLONG before = database_.GetNumChanges();
  Add(1, 1);
  Add(2, 2);
  EXPECT_TRUE(database_.DeleteCurrRecord());
  EXPECT_EQ(before + 3, database_.GetNumChanges());
  store_.Fail(tavix::FailingStore::Operation::kInfo, tavix::StoreError::kNotFound);
  EXPECT_EQ(~ULONGLONG{0}, database_.GetNumChanges());
}

TEST_F(DatabaseClass, TheOpenDatabaseTellsWhatItIs) {
  Add(1, 1);
  EXPECT_EQ(CString(L"lines"), database_.GetName());
  EXPECT_EQ(42U, database_.GetIdent());
  EXPECT_EQ(1U, database_.GetNumRecords());
  EXPECT_EQ(6U, database_.GetSize());
  EXPECT_NE(0U, database_.GetLastModified().dwHighDateTime);
  EXPECT_EQ(2, database_.GetNumSortProps());
  CCeDBProp props[4];
  EXPECT_EQ(2, database_.GetSortProps(props, 4));
  EXPECT_EQ(112, props[1].GetIdent());
  EXPECT_EQ(CCeDBProp::Type_Short, props[1].GetType());
  EXPECT_EQ(CCeDBProp::Sort_Descending, props[1].GetSortFlags());
  CCeDBProp found;
  EXPECT_TRUE(database_.GetSortPropFromIdent(112, &found));
  EXPECT_EQ(CCeDBProp::Sort_Descending, found.GetSortFlags());
  EXPECT_FALSE(database_.GetSortPropFromIdent(113, &found));
  EXPECT_TRUE(database_.SetIdent(43));
  EXPECT_TRUE(database_.SetName(L"renamed"));
  EXPECT_EQ(43U, database_.GetIdent());
  EXPECT_TRUE(CCeDBDatabase::Exists(L"renamed"));
}

TEST_F(DatabaseClass, ANumberOfRecordsPastAWordIsExact) {
  for (int i = 0; i < 65540; ++i) ASSERT_NE(0U, Add(1, 1));
  EXPECT_EQ(65540U, database_.GetNumRecords());
}

TEST_F(DatabaseClass, OpeningMakesTheFirstRecordCurrent) {
  EXPECT_TRUE(database_.m_bEOF) << "nothing is there yet";
  const CEOID two = Add(2, 2);
  const CEOID one = Add(1, 1);
  ASSERT_TRUE(database_.Open(L"lines", &by_line_));
  EXPECT_EQ(one, database_.GetCurrRecord());
  EXPECT_FALSE(database_.m_bEOF);
  ASSERT_TRUE(database_.Open(L"lines", &by_point_));
  EXPECT_EQ(two, database_.GetCurrRecord());
  ASSERT_TRUE(database_.Open(L"lines"));
  EXPECT_EQ(one, database_.GetCurrRecord()) << "without a property the first order is taken";
}

TEST_F(DatabaseClass, OpeningByIdentifierAndFailures) {
  CCeDBDatabase other;
  const CEOID oid = other.Create(L"memos");
  EXPECT_TRUE(other.Open(oid));
  EXPECT_EQ(CString(L"memos"), other.GetName());
  ExpectError(ERROR_INVALID_PARAMETER, other.Open(CEOID{0}), FALSE);
  EXPECT_FALSE(other.IsOpen());
  ExpectError(ERROR_FILE_NOT_FOUND, other.Open(L"none"), FALSE);
  ExpectError(ERROR_INVALID_PARAMETER, other.Open(oid, &by_line_), FALSE);
  EXPECT_FALSE(other.IsOpen());
}

TEST_F(DatabaseClass, DeletingNeedsAClosedDatabaseOrClosesIt) {
  ExpectError(ERROR_SHARING_VIOLATION, CCeDBDatabase::Delete(L"lines"), FALSE);
  EXPECT_TRUE(database_.Delete());
  EXPECT_FALSE(database_.IsOpen());
  EXPECT_FALSE(CCeDBDatabase::Exists(L"lines"));
  ExpectError(ERROR_FILE_NOT_FOUND, CCeDBDatabase::Delete(L"lines"), FALSE);
  ExpectError(ERROR_INVALID_PARAMETER, database_.Delete(), FALSE);
  const CEOID oid = database_.Create(L"again");
  EXPECT_TRUE(CCeDBDatabase::Delete(oid));
}

TEST_F(DatabaseClass, ADatabaseClosesWhenItsObjectGoes) {
  database_.Close();
  {
    CCeDBDatabase other;
    EXPECT_TRUE(other.Open(L"lines"));
  }
  EXPECT_TRUE(CCeDBDatabase::Delete(L"lines"));
}

TEST_F(DatabaseClass, SeeksByPlace) {
  const CEOID a = Add(1, 0);
  const CEOID b = Add(2, 0);
  const CEOID c = Add(3, 0);
  EXPECT_EQ(a, database_.SeekFirst());
  EXPECT_EQ(b, database_.SeekNext());
  EXPECT_EQ(1U, database_.GetCurrIndex());
  EXPECT_EQ(c, database_.SeekLast());
  EXPECT_EQ(b, database_.SeekPrev());
  EXPECT_EQ(c, database_.SeekToIndex(2));
  EXPECT_EQ(a, database_.SeekToRecord(a));
  EXPECT_EQ(0U, database_.SeekPrev());
  EXPECT_TRUE(database_.m_bEOF);
  EXPECT_EQ(0U, database_.GetCurrRecord());
  EXPECT_EQ(0xFFFFFFFFU, database_.GetCurrIndex());
  EXPECT_EQ(c, database_.SeekLast());
  EXPECT_FALSE(database_.m_bEOF);
  EXPECT_EQ(0U, database_.SeekNext());
  EXPECT_TRUE(database_.m_bEOF);
  ExpectError(ERROR_INVALID_PARAMETER, database_.SeekToRecord(9999), CEOID{0});
}

TEST_F(DatabaseClass, SeeksByValue) {
  const CEOID a = Add(10, 0);
  const CEOID b = Add(20, 0);
  const CEOID b2 = Add(20, 0);
  EXPECT_EQ(b, database_.SeekFirstEqual(CCeDBProp(short{20}, 111)));
  EXPECT_EQ(b2, database_.SeekNextEqual(CCeDBProp(short{20}, 111)));
  EXPECT_EQ(0U, database_.SeekNextEqual(CCeDBProp(short{20}, 111)));
  EXPECT_TRUE(database_.m_bEOF);
  EXPECT_EQ(a, database_.SeekValueSmaller(CCeDBProp(short{20}, 111)));
  EXPECT_FALSE(database_.m_bEOF);
  EXPECT_EQ(0U, database_.SeekValueSmaller(CCeDBProp(short{10}, 111)));
  EXPECT_FALSE(database_.m_bEOF) << "this seek never sets it";
  EXPECT_EQ(b, database_.SeekValueGreater(CCeDBProp(short{11}, 111)));
  EXPECT_EQ(0U, database_.SeekValueGreater(CCeDBProp(short{21}, 111)));
  EXPECT_TRUE(database_.m_bEOF);
  database_.SeekFirst();
  ExpectError(ERROR_INVALID_PARAMETER, database_.SeekFirstEqual(CCeDBProp(short{1}, 112)),
              CEOID{0});
  EXPECT_EQ(a, database_.GetCurrRecord()) << "sorted by another property: nothing was tried";
}

TEST_F(DatabaseClass, AReadGoesOnOrStaysAsToldAtAnyTime) {
  EXPECT_TRUE(database_.m_bAutoSeekNext) << "going on is what it starts with";
  for (short line = 1; line <= 3; ++line) Add(line, 0);
  std::vector<short> lines;
  database_.SeekFirst();
  while (!database_.m_bEOF) lines.push_back(ReadLine());
  EXPECT_EQ((std::vector<short>{1, 2, 3}), lines);
  ExpectError(ERROR_NO_MORE_ITEMS, ReadLine(), short{-1});

  database_.m_bAutoSeekNext = FALSE;
  database_.SeekFirst();
  EXPECT_EQ(1, ReadLine());
  EXPECT_EQ(1, ReadLine());
}

TEST_F(DatabaseClass, AReadRecordOwnsItsProperties) {
  database_.m_bAutoSeekNext = FALSE;
  CCeDBProp memo(L"memo", 122);
  CCeDBRecord written;
  written.AddProp(&memo);
  database_.AddRecord(&written);
  CCeDBProp foreign(short{1}, 5);
  CCeDBRecord read;
  read.AddProp(&foreign);
  ASSERT_TRUE(database_.ReadCurrRecord(&read));
  ASSERT_EQ(1, read.GetNumProps());
  CCeDBProp changed(L"changed", 122);
  CCeDBRecord change;
  change.AddProp(&changed);
  ASSERT_TRUE(database_.WriteCurrRecord(&change));
  EXPECT_STREQ(L"memo", read.GetPropFromIdent(122)->GetString());
  ASSERT_TRUE(database_.ReadCurrRecord(&read));
  EXPECT_STREQ(L"changed", read.GetPropFromIdent(122)->GetString());
}

TEST_F(DatabaseClass, AFilterChoosesWhatIsReadAndWritten) {
  database_.m_bAutoSeekNext = FALSE;
  Add(1, 2);
  CCeDBProp filter[] = {CCeDBProp(CCeDBProp::Type_Undefined, 112),
                        CCeDBProp(CCeDBProp::Type_Undefined, 113)};
  CCeDBRecord record;
  ASSERT_TRUE(database_.ReadCurrRecord(&record, 2, filter));
  EXPECT_EQ(2, record.GetNumProps());
  EXPECT_EQ(nullptr, record.GetPropFromIdent(111));
  ASSERT_TRUE(database_.ReadCurrRecord(&record));
  record.GetPropFromIdent(111)->SetShort(50);
  record.GetPropFromIdent(112)->SetShort(60);
  ASSERT_TRUE(database_.WriteCurrRecord(&record, 1, filter));
  ASSERT_TRUE(database_.ReadCurrRecord(&record));
  EXPECT_EQ(1, record.GetPropFromIdent(111)->GetShort());
  EXPECT_EQ(60, record.GetPropFromIdent(112)->GetShort());
}

TEST_F(DatabaseClass, PropertiesCanBeTakenOutOfTheCurrentRecord) {
  database_.m_bAutoSeekNext = FALSE;
  Add(1, 2);
  CCeDBProp gone[] = {CCeDBProp(CCeDBProp::Type_Short, 112)};
  EXPECT_TRUE(database_.DeleteCurrProps(gone, 1));
  CCeDBRecord record;
  ASSERT_TRUE(database_.ReadCurrRecord(&record));
  EXPECT_EQ(2, record.GetNumProps());
  EXPECT_EQ(nullptr, record.GetPropFromIdent(112));
}

TEST_F(DatabaseClass, WritingNeedsACurrentRecord) {
  Add(1, 2);
  database_.SeekPrev();
  CCeDBProp prop(short{1}, 111);
  CCeDBRecord record;
  record.AddProp(&prop);
  ExpectError(ERROR_INVALID_PARAMETER, database_.WriteCurrRecord(&record), FALSE);
  ExpectError(ERROR_INVALID_PARAMETER, database_.DeleteCurrRecord(), FALSE);
  EXPECT_EQ(1U, database_.GetNumRecords());
  CCeDBRecord empty;
  ExpectError(ERROR_INVALID_PARAMETER, database_.AddRecord(&empty), CEOID{0});
}

TEST_F(DatabaseClass, EqualLinesCanBeDeletedWhileWalking) {
  for (const int line : {1, 2, 2, 2, 3}) Add(static_cast<short>(line), 0);
  database_.m_bAutoSeekNext = FALSE;
  const CCeDBProp two(short{2}, 111);
  for (CEOID record = database_.SeekFirstEqual(two); record != 0;
       record = database_.SeekNextEqual(two)) {
    EXPECT_TRUE(database_.DeleteCurrRecord());
    EXPECT_EQ(0U, database_.GetCurrRecord());
  }
  EXPECT_EQ(2U, database_.GetNumRecords());
}

TEST_F(DatabaseClass, DeletingGoesOnToTheNextRecordWhenTold) {
  const CEOID a = Add(1, 0);
  const CEOID b = Add(2, 0);
  database_.SeekToRecord(a);
  EXPECT_TRUE(database_.DeleteCurrRecord());
  EXPECT_EQ(b, database_.GetCurrRecord());
  EXPECT_TRUE(database_.DeleteCurrRecord());
  EXPECT_EQ(0U, database_.GetCurrRecord());
  EXPECT_TRUE(database_.m_bEOF);
}

TEST_F(DatabaseClass, TwoObjectsShareOneDatabase) {
  database_.m_bAutoSeekNext = FALSE;
  const CEOID a = Add(1, 5);
  Add(2, 4);
  CCeDBDatabase other;
  ASSERT_TRUE(other.Open(L"lines", &by_point_));
  EXPECT_EQ(a, other.GetCurrRecord());
  EXPECT_TRUE(other.DeleteCurrRecord());
  EXPECT_EQ(0U, database_.SeekFirstEqual(CCeDBProp(short{1}, 111)));
  EXPECT_EQ(1U, database_.GetNumRecords());
}

TEST_F(DatabaseClass, NewOrdersCloseTheDatabaseAndSortIt) {
  const CEOID a = Add(1, 9);
  const CEOID b = Add(2, 1);
  CCeDBProp by_point(CCeDBProp::Type_Short, 112);
  EXPECT_TRUE(database_.SetSortProps(1, &by_point));
  EXPECT_FALSE(database_.IsOpen());
  ASSERT_TRUE(database_.Open(L"lines", &by_point));
  EXPECT_EQ(b, database_.GetCurrRecord());
  EXPECT_EQ(a, database_.SeekNext());
}

TEST_F(DatabaseClass, TheHandleServesTheDevicesCalls) {
  const CEOID record = Add(1, 2);
  EXPECT_EQ(record, CeSeekDatabase(database_.m_hDatabase, CEDB_SEEK_BEGINNING, 0, nullptr));
}

TEST_F(DatabaseClass, NothingWorksWhenNothingIsOpen) {
  CCeDBDatabase closed;
  CCeDBRecord record;
  ExpectError(ERROR_INVALID_PARAMETER, closed.SeekFirst(), CEOID{0});
  ExpectError(ERROR_INVALID_PARAMETER, closed.ReadCurrRecord(&record), FALSE);
  EXPECT_EQ(0U, closed.GetNumRecords());
  EXPECT_EQ(CString(), closed.GetName());
  closed.Close();
}

TEST_F(DatabaseClass, AnEnumerationFindsDatabasesAndStartsAnew) {
  CCeDBDatabase other;
  const CEOID memos = other.Create(L"memos", 43);
  CCeDBEnum all;
  EXPECT_NE(0U, all.Next());
  EXPECT_EQ(memos, all.Next());
  ExpectError(ERROR_NO_MORE_ITEMS, all.Next(), CEOID{0});
  EXPECT_TRUE(all.Reset(43));
  EXPECT_EQ(memos, all.Next());
  EXPECT_EQ(0U, all.Next());
  EXPECT_TRUE(CCeDBDatabase::Delete(memos));
  ExpectError(ERROR_KEY_DELETED, all.Next(), CEOID{0});
  EXPECT_TRUE(all.Reset());
  EXPECT_NE(0U, all.Next());
}

}  // namespace
