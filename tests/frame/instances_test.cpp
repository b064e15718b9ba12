// The five instances, and which of them is current.
#include <tavix/tavix.h>

#include <limits>

#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

using Instances = LibraryTest;

void CreateInstances(std::initializer_list<int> indexes) {
  for (const int index : indexes) {
    Tavix_SetIdx(index);
    ASSERT_EQ(0, Tavix_Crt()) << index;
  }
}

TEST_F(Instances, AnyOfFiveCanBeCurrent) {
  for (int index = kInstances - 1; index >= 0; --index) {
    Tavix_SetIdx(index);
    EXPECT_EQ(index, CurrentIndex());
  }
}

TEST_F(Instances, AnIndexOutOfRangeChangesNothing) {
  Tavix_SetIdx(3);
  for (const int index :
       {-1, 5, 6, 256, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
    Tavix_SetIdx(index);
    EXPECT_EQ(3, CurrentIndex()) << index;
  }
}

TEST_F(Instances, CreatingOneThatExistsIsRefusedAndKeepsItsData) {
  CreateInstances({3});
  ASSERT_EQ(0, Tavix_EntPnt(7, 1, L"A", 2.0, 3.0));
  EXPECT_EQ(-1, Tavix_Crt());
  double x = 0.0;
  double y = 0.0;
  EXPECT_EQ(0, Tavix_GetPntCrd(7, &x, &y));
  EXPECT_EQ(2.0, x);
  EXPECT_EQ(3.0, y);
}

TEST_F(Instances, CreatingOneLeavesTheOthersFree) {
  CreateInstances({3});
  for (const int index : {0, 1, 2, 4}) {
    Tavix_SetIdx(index);
    EXPECT_EQ(nullptr, Tavix_Wnd()) << index;
    EXPECT_EQ(0, Tavix_Crt()) << index;
  }
}

TEST_F(Instances, ADeletedOneCanBeCreatedAgainAndIsEmpty) {
  CreateInstances({2});
  ASSERT_EQ(0, Tavix_EntPnt(7, 1, L"A", 2.0, 3.0));
  EXPECT_EQ(0, Tavix_Del());
  EXPECT_EQ(0, Tavix_Crt());
  double x = 0.0;
  double y = 0.0;
  EXPECT_EQ(-1, Tavix_GetPntCrd(7, &x, &y));
}

TEST_F(Instances, DeletingMakesTheHighestInUseCurrent) {
  const struct {
    std::initializer_list<int> created;
    int deleted;
    int current;
  } rows[] = {
      {{1, 2, 4}, 4, 2}, {{1, 2, 4}, 1, 4}, {{0, 1}, 1, 0}, {{0, 1, 2, 3, 4}, 0, 4},
      {{3}, 3, 3},  // none is left: the index stays
      {{0}, 0, 0},
  };
  for (const auto& row : rows) {
    CreateInstances(row.created);
    Tavix_SetIdx(row.deleted);
    EXPECT_EQ(0, Tavix_Del());
    EXPECT_EQ(row.current, CurrentIndex()) << "after deleting " << row.deleted;
    TearDown();
  }
}

TEST_F(Instances, DeletingAFreeOneIsNotRefused) {
  CreateInstances({1});
  Tavix_SetIdx(4);
  EXPECT_EQ(0, Tavix_Del());
  EXPECT_EQ(1, CurrentIndex());
}

TEST_F(Instances, HaveDataOfTheirOwn) {
  for (int index = 0; index < kInstances; ++index) {
    CreateInstances({index});
    ASSERT_EQ(0, Tavix_EntPnt(7, 100 + index, L"A", index, -index));
    ASSERT_EQ(0, Tavix_SetAng(10 * index));
    ASSERT_EQ(0, Tavix_PntHanTtl(1, L"title"));
    ASSERT_EQ(0, Tavix_ChgPntHan(1, 2, 1, index, 10, 10, 1));
  }
  for (int index = 0; index < kInstances; ++index) {
    Tavix_SetIdx(index);
    int number = 0;
    CString name;
    EXPECT_EQ(0, Tavix_GetPntNoNam(7, &number, &name));
    EXPECT_EQ(100 + index, number);
    int angle = -1;
    EXPECT_EQ(0, Tavix_GetAng(&angle));
    EXPECT_EQ(10 * index, angle);
    int kind = 0, width = 0, color = -1, size = 0, height = 0, label = 0;
    EXPECT_EQ(0, Tavix_GetPntHan(1, &kind, &width, &color, &size, &height, &label));
    EXPECT_EQ(index, color);
  }
}

TEST_F(Instances, ClearingEmptiesTheCurrentOneOnlyAndKeepsItsLegend) {
  CreateInstances({0, 1});
  for (const int index : {0, 1}) {
    Tavix_SetIdx(index);
    ASSERT_EQ(0, Tavix_EntPnt(7, 1, L"A", 2.0, 3.0));
    ASSERT_EQ(0, Tavix_ChgPntHan(1, 2, 3, 4, 5, 6, 7));
  }
  EXPECT_EQ(0, Tavix_DrwClr());
  double x = 0.0;
  double y = 0.0;
  EXPECT_EQ(-1, Tavix_GetPntCrd(7, &x, &y));
  int kind = 0, width = 0, color = 0, size = 0, height = 0, label = 0;
  EXPECT_EQ(0, Tavix_GetPntHan(1, &kind, &width, &color, &size, &height, &label));
  EXPECT_EQ(3, width);
  EXPECT_EQ(0, Tavix_EntPnt(7, 1, L"A", 2.0, 3.0));  // the store works on
  EXPECT_EQ(0, Tavix_GetPntCrd(7, &x, &y));
  Tavix_SetIdx(0);
  EXPECT_EQ(0, Tavix_GetPntCrd(7, &x, &y));
}

TEST_F(Instances, TheAngleIsAWholeNumberOfDegreesBelowAFullTurn) {
  CreateInstances({0});
  int angle = -1;
  EXPECT_EQ(0, Tavix_GetAng(&angle));
  EXPECT_EQ(0, angle);
  for (const int good : {0, 1, 89, 90, 180, 270, 359}) {
    EXPECT_EQ(0, Tavix_SetAng(good)) << good;
    EXPECT_EQ(0, Tavix_GetAng(&angle));
    EXPECT_EQ(good, angle);
  }
  for (const int bad :
       {-1, 360, 361, -360, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
    EXPECT_EQ(-1, Tavix_SetAng(bad)) << bad;
    EXPECT_EQ(0, Tavix_GetAng(&angle));
    EXPECT_EQ(359, angle) << bad;
  }
}

}  // namespace
}  // namespace tavix::test
