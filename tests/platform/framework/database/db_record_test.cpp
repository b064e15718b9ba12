// CCeDBProp: types, values, and who owns strings and blobs. CCeDBRecord: a list of properties, its
// own or those of others.
#include <gtest/gtest.h>
#include <wcedb.h>

#include <utility>

namespace {

TEST(Prop, EveryConstructorGivesItsTypeIdentifierAndValue) {
  BYTE bytes[] = {1, 2, 3};
  EXPECT_EQ(CCeDBProp::Type_Undefined, CCeDBProp().GetType());
  const CCeDBProp shorter(short{-5}, 111);
  EXPECT_EQ(CCeDBProp::Type_Short, shorter.GetType());
  EXPECT_EQ(111, shorter.GetIdent());
  EXPECT_EQ(-5, shorter.GetShort());
  EXPECT_EQ(65535, CCeDBProp(USHORT{65535}, 1).GetUShort());
  EXPECT_EQ(CCeDBProp::Type_UShort, CCeDBProp(USHORT{65535}, 1).GetType());
  EXPECT_EQ(-7, CCeDBProp(-7L, 1).GetLong());
  EXPECT_EQ(CCeDBProp::Type_Long, CCeDBProp(-7L, 1).GetType());
  EXPECT_EQ(7U, CCeDBProp(7UL, 1).GetULong());
  EXPECT_EQ(CCeDBProp::Type_ULong, CCeDBProp(7UL, 1).GetType());
  EXPECT_EQ(2U, CCeDBProp(FILETIME{1, 2}, 1).GetFiletime().dwHighDateTime);
  EXPECT_EQ(CCeDBProp::Type_Filetime, CCeDBProp(FILETIME{1, 2}, 1).GetType());
  EXPECT_STREQ(L"text", CCeDBProp(L"text", 1).GetString());
  EXPECT_EQ(CCeDBProp::Type_String, CCeDBProp(L"text", 1).GetType());
  const CCeDBProp blob(CEBLOB{3, bytes}, 1);
  EXPECT_EQ(CCeDBProp::Type_Blob, blob.GetType());
  EXPECT_EQ(3U, blob.GetBlob().dwCount);
  EXPECT_EQ(0, memcmp(blob.GetBlob().lpb, bytes, 3));
}

TEST(Prop, APropertyToSortByHasFlagsAndNoValue) {
  const CCeDBProp prop(CCeDBProp::Type_Short, 112,
                       CCeDBProp::Sort_Descending | CCeDBProp::Sort_UnknownFirst);
  EXPECT_EQ(CCeDBProp::Type_Short, prop.GetType());
  EXPECT_EQ(112, prop.GetIdent());
  EXPECT_EQ(CEDB_SORT_DESCENDING | CEDB_SORT_UNKNOWNFIRST, prop.GetSortFlags());
  EXPECT_EQ(prop.GetSortFlags(), prop.m_wSortFlags);
}

TEST(Prop, SettingAValueSetsItsTypeAndKeepsTheIdentifier) {
  CCeDBProp prop(L"a string first", 9);
  prop.SetShort(-1);
  EXPECT_EQ(CCeDBProp::Type_Short, prop.GetType());
  EXPECT_EQ(-1, prop.GetShort());
  prop.SetUShort(2);
  EXPECT_EQ(2, prop.GetUShort());
  prop.SetLong(3);
  EXPECT_EQ(3, prop.GetLong());
  prop.SetULong(4);
  EXPECT_EQ(4U, prop.GetULong());
  prop.SetBool(TRUE);
  EXPECT_EQ(CCeDBProp::Type_Bool, prop.GetType());
  EXPECT_TRUE(prop.GetBool());
  prop.SetDouble(0.5);
  EXPECT_EQ(CCeDBProp::Type_Double, prop.GetType());
  EXPECT_EQ(0.5, prop.GetDouble());
  prop.SetFiletime({1, 2});
  EXPECT_EQ(1U, prop.GetFiletime().dwLowDateTime);
  prop.SetString(L"again");
  EXPECT_STREQ(L"again", prop.GetString());
  EXPECT_EQ(9, prop.GetIdent());
  prop.SetIdent(10);
  EXPECT_EQ(10, prop.GetIdent());
  EXPECT_EQ(CCeDBProp::Type_String, prop.GetType());
  prop.SetSortFlags(CCeDBProp::Sort_Descending);
  EXPECT_EQ(CCeDBProp::Sort_Descending, prop.GetSortFlags());
}

TEST(Prop, ACopiedStringIsThePropertysOwnAndAnUncopiedOneIsNot) {
  wchar_t text[] = L"text";
  const CCeDBProp copied(text, 1);
  const CCeDBProp not_copied(text, 1, CCeDBProp::NoCopy);
  text[0] = L'n';
  EXPECT_STREQ(L"text", copied.GetString());
  EXPECT_EQ(text, not_copied.GetString());
  BYTE bytes[] = {1};
  const CCeDBProp blob(CEBLOB{1, bytes}, 1, CCeDBProp::NoCopy);
  EXPECT_EQ(bytes, blob.GetBlob().lpb);
}

TEST(Prop, CopiesAreIndependent) {
  CCeDBProp original(L"one", 1);
  CCeDBProp copy(original);
  EXPECT_NE(original.GetString(), copy.GetString());
  original.SetString(L"two");
  EXPECT_STREQ(L"one", copy.GetString());
  copy = original;
  original.SetShort(1);
  EXPECT_STREQ(L"two", copy.GetString());
  const CCeDBProp& itself = copy;
  copy = itself;
  EXPECT_STREQ(L"two", copy.GetString());
  CCeDBProp moved(std::move(copy));
  EXPECT_STREQ(L"two", moved.GetString());
  CCeDBProp assigned;
  assigned = std::move(moved);
  EXPECT_STREQ(L"two", assigned.GetString());
}

TEST(Prop, AValueMayBeSetFromItself) {
  CCeDBProp prop(L"shorten me", 1);
  prop.SetString(prop.GetString() + 8);
  EXPECT_STREQ(L"me", prop.GetString());
  BYTE bytes[] = {1, 2, 3};
  prop.SetBlob({3, bytes});
  prop.SetBlob({2, prop.GetBlob().lpb + 1});
  EXPECT_EQ(3, prop.GetBlob().lpb[1]);
}

TEST(Prop, NullsStayNull) {
  EXPECT_EQ(nullptr, CCeDBProp(static_cast<LPCWSTR>(nullptr), 1).GetString());
  EXPECT_EQ(nullptr, CCeDBProp(CEBLOB{0, nullptr}, 1).GetBlob().lpb);
  const CCeDBProp copy = CCeDBProp(static_cast<LPCWSTR>(nullptr), 1);
  EXPECT_EQ(nullptr, copy.GetString());
}

struct Record : testing::Test {
  CCeDBProp props[3] = {CCeDBProp(short{1}, 111), CCeDBProp(short{2}, 112),
                        CCeDBProp(L"text", 122)};
  CCeDBRecord record;
};

TEST_F(Record, AddedPropertiesAreTheCallersOwn) {
  EXPECT_TRUE(record.AddProps(props, 3));
  EXPECT_EQ(3, record.GetNumProps());
  EXPECT_EQ(&props[1], record.GetPropFromIdent(112));
  EXPECT_EQ(&props[2], record.GetPropFromIndex(2));
  EXPECT_EQ(&props[0], record[0]);
  CCeDBProp one(short{9}, 5);
  EXPECT_TRUE(record.AddProp(&one));
  EXPECT_EQ(&one, record.GetPropFromIdent(5));
}

TEST_F(Record, WhatIsNotThereIsNull) {
  record.AddProps(props, 3);
  EXPECT_EQ(nullptr, record.GetPropFromIdent(1));
  EXPECT_EQ(nullptr, record.GetPropFromIndex(3));
  EXPECT_EQ(nullptr, record.GetPropFromIndex(-1));
  EXPECT_FALSE(record.AddProp(nullptr));
  EXPECT_FALSE(record.AddProps(nullptr, 1));
  EXPECT_FALSE(record.AddProps(props, -1));
  EXPECT_EQ(3, record.GetNumProps());
}

TEST_F(Record, SeveralPropertiesCanBeAskedForAtOnce) {
  record.AddProps(props, 3);
  CCeDBProp wanted[] = {CCeDBProp(CCeDBProp::Type_String, 122),
                        CCeDBProp(CCeDBProp::Type_Short, 111)};
  EXPECT_TRUE(record.GetMultiProps(wanted, 2));
  EXPECT_STREQ(L"text", wanted[0].GetString());
  EXPECT_EQ(1, wanted[1].GetShort());
  CCeDBProp some[] = {CCeDBProp(short{-1}, 200), CCeDBProp(CCeDBProp::Type_Short, 112)};
  EXPECT_FALSE(record.GetMultiProps(some, 2));
  EXPECT_EQ(-1, some[0].GetShort());
  EXPECT_EQ(2, some[1].GetShort());
}

TEST_F(Record, DeletingTakesPropertiesOutAndLeavesThemBe) {
  record.AddProps(props, 3);
  record.DeleteProp(112);
  record.DeleteProp(999);
  EXPECT_EQ(2, record.GetNumProps());
  EXPECT_EQ(&props[2], record.GetPropFromIndex(1));
  record.DeleteAllProps();
  EXPECT_EQ(0, record.GetNumProps());
  EXPECT_STREQ(L"text", props[2].GetString());
}

}  // namespace
