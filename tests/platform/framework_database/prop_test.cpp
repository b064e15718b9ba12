// CCeDBProp: types, values, and whose strings and blobs they are.
#include <gtest/gtest.h>
#include <wcedb.h>

#include <utility>

namespace {

TEST(Prop, EveryConstructorGivesItsTypeIdentifierAndValue) {
  BYTE bytes[] = {1, 2, 3};
  EXPECT_EQ(CCeDBProp().GetType(), CCeDBProp::Type_Undefined);
  const CCeDBProp shorter(short{-5}, 111);
  EXPECT_EQ(shorter.GetType(), CCeDBProp::Type_Short);
  EXPECT_EQ(shorter.GetIdent(), 111);
  EXPECT_EQ(shorter.GetShort(), -5);
  EXPECT_EQ(CCeDBProp(USHORT{65535}, 1).GetUShort(), 65535);
  EXPECT_EQ(CCeDBProp(USHORT{65535}, 1).GetType(), CCeDBProp::Type_UShort);
  EXPECT_EQ(CCeDBProp(-7L, 1).GetLong(), -7);
  EXPECT_EQ(CCeDBProp(-7L, 1).GetType(), CCeDBProp::Type_Long);
  EXPECT_EQ(CCeDBProp(7UL, 1).GetULong(), 7U);
  EXPECT_EQ(CCeDBProp(7UL, 1).GetType(), CCeDBProp::Type_ULong);
  EXPECT_EQ(CCeDBProp(FILETIME{1, 2}, 1).GetFiletime().dwHighDateTime, 2U);
  EXPECT_EQ(CCeDBProp(FILETIME{1, 2}, 1).GetType(), CCeDBProp::Type_Filetime);
  EXPECT_STREQ(CCeDBProp(L"text", 1).GetString(), L"text");
  EXPECT_EQ(CCeDBProp(L"text", 1).GetType(), CCeDBProp::Type_String);
  const CCeDBProp blob(CEBLOB{3, bytes}, 1);
  EXPECT_EQ(blob.GetType(), CCeDBProp::Type_Blob);
  EXPECT_EQ(blob.GetBlob().dwCount, 3U);
  EXPECT_EQ(memcmp(blob.GetBlob().lpb, bytes, 3), 0);
}

TEST(Prop, APropertyToSortByHasFlagsAndNoValue) {
  const CCeDBProp prop(CCeDBProp::Type_Short, 112,
                       CCeDBProp::Sort_Descending | CCeDBProp::Sort_UnknownFirst);
  EXPECT_EQ(prop.GetType(), CCeDBProp::Type_Short);
  EXPECT_EQ(prop.GetIdent(), 112);
  EXPECT_EQ(prop.GetSortFlags(), CEDB_SORT_DESCENDING | CEDB_SORT_UNKNOWNFIRST);
  EXPECT_EQ(prop.m_wSortFlags, prop.GetSortFlags());
}

TEST(Prop, SettingAValueSetsItsTypeAndKeepsTheIdentifier) {
  CCeDBProp prop(L"a string first", 9);
  prop.SetShort(-1);
  EXPECT_EQ(prop.GetType(), CCeDBProp::Type_Short);
  EXPECT_EQ(prop.GetShort(), -1);
  prop.SetUShort(2);
  EXPECT_EQ(prop.GetUShort(), 2);
  prop.SetLong(3);
  EXPECT_EQ(prop.GetLong(), 3);
  prop.SetULong(4);
  EXPECT_EQ(prop.GetULong(), 4U);
  prop.SetBool(TRUE);
  EXPECT_EQ(prop.GetType(), CCeDBProp::Type_Bool);
  EXPECT_TRUE(prop.GetBool());
  prop.SetDouble(0.5);
  EXPECT_EQ(prop.GetType(), CCeDBProp::Type_Double);
  EXPECT_EQ(prop.GetDouble(), 0.5);
  prop.SetFiletime({1, 2});
  EXPECT_EQ(prop.GetFiletime().dwLowDateTime, 1U);
  prop.SetString(L"again");
  EXPECT_STREQ(prop.GetString(), L"again");
  EXPECT_EQ(prop.GetIdent(), 9);
  prop.SetIdent(10);
  EXPECT_EQ(prop.GetIdent(), 10);
  EXPECT_EQ(prop.GetType(), CCeDBProp::Type_String);
  prop.SetSortFlags(CCeDBProp::Sort_Descending);
  EXPECT_EQ(prop.GetSortFlags(), CCeDBProp::Sort_Descending);
}

TEST(Prop, ACopiedStringIsThePropertysOwnAndAnUncopiedOneIsNot) {
  wchar_t text[] = L"text";
  const CCeDBProp copied(text, 1);
  const CCeDBProp not_copied(text, 1, CCeDBProp::NoCopy);
  text[0] = L'n';
  EXPECT_STREQ(copied.GetString(), L"text");
  EXPECT_EQ(not_copied.GetString(), text);
  BYTE bytes[] = {1};
  const CCeDBProp blob(CEBLOB{1, bytes}, 1, CCeDBProp::NoCopy);
  EXPECT_EQ(blob.GetBlob().lpb, bytes);
}

TEST(Prop, CopiesAreIndependent) {
  CCeDBProp original(L"one", 1);
  CCeDBProp copy(original);
  EXPECT_NE(copy.GetString(), original.GetString());
  original.SetString(L"two");
  EXPECT_STREQ(copy.GetString(), L"one");
  copy = original;
  original.SetShort(1);
  EXPECT_STREQ(copy.GetString(), L"two");
  const CCeDBProp& itself = copy;
  copy = itself;
  EXPECT_STREQ(copy.GetString(), L"two");
  CCeDBProp moved(std::move(copy));
  EXPECT_STREQ(moved.GetString(), L"two");
  CCeDBProp assigned;
  assigned = std::move(moved);
  EXPECT_STREQ(assigned.GetString(), L"two");
}

TEST(Prop, AValueMayBeSetFromItself) {
  CCeDBProp prop(L"shorten me", 1);
  prop.SetString(prop.GetString() + 8);
  EXPECT_STREQ(prop.GetString(), L"me");
  BYTE bytes[] = {1, 2, 3};
  prop.SetBlob({3, bytes});
  prop.SetBlob({2, prop.GetBlob().lpb + 1});
  EXPECT_EQ(prop.GetBlob().lpb[1], 3);
}

TEST(Prop, NullsStayNull) {
  EXPECT_EQ(CCeDBProp(static_cast<LPCWSTR>(nullptr), 1).GetString(), nullptr);
  EXPECT_EQ(CCeDBProp(CEBLOB{0, nullptr}, 1).GetBlob().lpb, nullptr);
  const CCeDBProp copy = CCeDBProp(static_cast<LPCWSTR>(nullptr), 1);
  EXPECT_EQ(copy.GetString(), nullptr);
}

}  // namespace
