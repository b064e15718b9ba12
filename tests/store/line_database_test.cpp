// The line and the memo database as another program on the device sees them.
#include <tavix/tavix.h>

#include "tests/support/device_records.h"
#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

class InstanceDatabases : public LibraryTest {
 protected:
  static std::wstring Lines(int index) { return L"QZLinDB" + std::to_wstring(index); }
  static std::wstring Memos(int index) { return L"QZMemDB" + std::to_wstring(index); }

  static void ExpectSorted(const std::wstring& name, DWORD ident, std::vector<WORD> idents) {
    CCeDBDatabase database;
    ASSERT_TRUE(database.Open(name.c_str()));
    EXPECT_EQ(ident, database.GetIdent());
    ASSERT_EQ(idents.size(), database.GetNumSortProps());
    CCeDBProp properties[4];
    database.GetSortProps(properties, 4);
    for (std::size_t i = 0; i < idents.size(); ++i) {
      EXPECT_EQ(idents[i], properties[i].GetIdent());
      EXPECT_EQ(CCeDBProp::Type_Short, properties[i].GetType());
    }
  }

  // What a host that ended abnormally leaves.
  static void LeaveBehind(const std::wstring& name) {
    CCeDBDatabase database;
    ASSERT_NE(0U, database.Create(name.c_str(), 1));
    ASSERT_TRUE(database.Open(name.c_str()));
    CCeDBProp property(short{1}, 112);
    CCeDBRecord record;
    record.AddProp(&property);
    ASSERT_NE(0U, database.AddRecord(&record));
  }
};

TEST_F(InstanceDatabases, HaveANameAndATypeForEachInstance) {
  for (int index = 0; index < kInstances; ++index) {
    Tavix_SetIdx(index);
    ASSERT_EQ(0, Tavix_Crt());
    const auto step = static_cast<DWORD>(10 * index);
    ExpectSorted(Lines(index), 10002 + step, {111, 112});
    ExpectSorted(Memos(index), 10003 + step, {121});
  }
}

TEST_F(InstanceDatabases, KeepTheirTypeAndOrdersWhenCleared) {
  Tavix_SetIdx(3);
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, Tavix_ClrEntLin());
  ExpectSorted(Lines(3), 10032, {111, 112});
  ASSERT_EQ(0, Tavix_DrwClr());
  ExpectSorted(Lines(3), 10032, {111, 112});
  ExpectSorted(Memos(3), 10033, {121});
}

TEST_F(InstanceDatabases, LiveAsLongAsTheirInstance) {
  EXPECT_FALSE(CCeDBDatabase::Exists(L"QZLinDB0"));
  ASSERT_EQ(0, Tavix_Crt());
  EXPECT_TRUE(CCeDBDatabase::Exists(L"QZLinDB0"));
  EXPECT_TRUE(CCeDBDatabase::Exists(L"QZMemDB0"));
  ASSERT_EQ(0, Tavix_EntLin(1, 2));
  ASSERT_EQ(0, Tavix_EntPntMem(1, L"memo"));
  Tavix_Del();
  EXPECT_FALSE(CCeDBDatabase::Exists(L"QZLinDB0"));
  EXPECT_FALSE(CCeDBDatabase::Exists(L"QZMemDB0"));
  ASSERT_EQ(0, Tavix_Crt());
  EXPECT_TRUE(LinesOnDevice().empty());
  EXPECT_TRUE(MemosOnDevice().empty());
}

TEST_F(InstanceDatabases, DiscardWhatWasLeftOnTheDevice) {
  LeaveBehind(Lines(0));
  LeaveBehind(Memos(0));
  ASSERT_EQ(0, Tavix_Crt());
  ExpectSorted(Lines(0), 10002, {111, 112});
  ExpectSorted(Memos(0), 10003, {121});
  EXPECT_TRUE(LinesOnDevice().empty());
  EXPECT_TRUE(MemosOnDevice().empty());
  EXPECT_EQ(-3, Tavix_DelEntLin(1, 1));
}

TEST_F(InstanceDatabases, OfTwoInstancesAreSeparate) {
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, Tavix_EntLin(1, 2));
  ASSERT_EQ(0, Tavix_EntPntMem(1, L"zero"));
  Tavix_SetIdx(1);
  ASSERT_EQ(0, Tavix_Crt());
  Tavix_SelLinHan(104);
  ASSERT_EQ(0, Tavix_EntLin(2, 1));
  ASSERT_EQ(0, Tavix_EntLin(2, 3));
  ASSERT_EQ(0, Tavix_EntPntMem(1, L"one"));
  EXPECT_EQ((std::vector<LineRecord>{{1, 1, 2, 0, -1}}), LinesOnDevice(0));
  EXPECT_EQ((std::vector<LineRecord>{{1, 1, 2, 1, 104}, {2, 2, 3, 0, 104}}), LinesOnDevice(1));
  EXPECT_EQ((std::vector<MemoRecord>{{1, L"zero"}}), MemosOnDevice(0));
  EXPECT_EQ((std::vector<MemoRecord>{{1, L"one"}}), MemosOnDevice(1));
  Tavix_Del();
  EXPECT_FALSE(CCeDBDatabase::Exists(L"QZLinDB1"));
  EXPECT_EQ(1U, LinesOnDevice(0).size()) << "the other instance's lines stay";
}

TEST_F(InstanceDatabases, AreEmptiedByClearingTheDrawing) {
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, Tavix_EntLin(1, 2));
  ASSERT_EQ(0, Tavix_EntPntMem(1, L"memo"));
  EXPECT_EQ(0, Tavix_DrwClr());
  EXPECT_TRUE(LinesOnDevice().empty());
  EXPECT_TRUE(MemosOnDevice().empty());
}

}  // namespace
}  // namespace tavix::test
