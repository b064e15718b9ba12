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
  EXPECT_EQ(record.GetNumProps(), 3);
  EXPECT_EQ(record.GetPropFromIdent(112), &props[1]);
  EXPECT_EQ(record.GetPropFromIndex(2), &props[2]);
  EXPECT_EQ(record[0], &props[0]);
  CCeDBProp one(short{9}, 5);
  EXPECT_TRUE(record.AddProp(&one));
  EXPECT_EQ(record.GetPropFromIdent(5), &one);
}

TEST_F(Record, WhatIsNotThereIsNull) {
  record.AddProps(props, 3);
  EXPECT_EQ(record.GetPropFromIdent(1), nullptr);
  EXPECT_EQ(record.GetPropFromIndex(3), nullptr);
  EXPECT_EQ(record.GetPropFromIndex(-1), nullptr);
  EXPECT_FALSE(record.AddProp(nullptr));
  EXPECT_FALSE(record.AddProps(nullptr, 1));
  EXPECT_FALSE(record.AddProps(props, -1));
  EXPECT_EQ(record.GetNumProps(), 3);
}

TEST_F(Record, SeveralPropertiesCanBeAskedForAtOnce) {
  record.AddProps(props, 3);
  CCeDBProp wanted[] = {CCeDBProp(CCeDBProp::Type_String, 122),
                        CCeDBProp(CCeDBProp::Type_Short, 111)};
  EXPECT_TRUE(record.GetMultiProps(wanted, 2));
  EXPECT_STREQ(wanted[0].GetString(), L"text");
  EXPECT_EQ(wanted[1].GetShort(), 1);
  CCeDBProp some[] = {CCeDBProp(short{-1}, 200), CCeDBProp(CCeDBProp::Type_Short, 112)};
  EXPECT_FALSE(record.GetMultiProps(some, 2));
  EXPECT_EQ(some[0].GetShort(), -1);
  EXPECT_EQ(some[1].GetShort(), 2);
}

TEST_F(Record, DeletingTakesPropertiesOutAndLeavesThemBe) {
  record.AddProps(props, 3);
  record.DeleteProp(112);
  record.DeleteProp(999);
  EXPECT_EQ(record.GetNumProps(), 2);
  EXPECT_EQ(record.GetPropFromIndex(1), &props[2]);
  record.DeleteAllProps();
  EXPECT_EQ(record.GetNumProps(), 0);
  EXPECT_STREQ(props[2].GetString(), L"text");
}

}  // namespace
