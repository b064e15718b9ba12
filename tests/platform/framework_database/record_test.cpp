// CCeDBRecord: a list of properties, its own or others'.
#include <gtest/gtest.h>
#include <wcedb.h>

namespace {

struct Record : testing::Test {
  CCeDBProp props[3] = {CCeDBProp(short{1}, 111), CCeDBProp(short{2}, 112),
                        CCeDBProp(L"text", 122)};
  CCeDBRecord record;
};

TEST_F(Record, AddedPropertiesAreTheCallersOwn) {
  EXPECT_TRUE(record.AddProps(props, 3));
  EXPECT_EQ(3, record.GetNumProps());
  EXPECT_EQ(record.GetPropFromIdent(112), &props[1]);
  EXPECT_EQ(record.GetPropFromIndex(2), &props[2]);
  EXPECT_EQ(record[0], &props[0]);
  CCeDBProp one(short{9}, 5);
  EXPECT_TRUE(record.AddProp(&one));
  EXPECT_EQ(record.GetPropFromIdent(5), &one);
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
  EXPECT_EQ(record.GetPropFromIndex(1), &props[2]);
  record.DeleteAllProps();
  EXPECT_EQ(0, record.GetNumProps());
  EXPECT_STREQ(L"text", props[2].GetString());
}

}  // namespace
