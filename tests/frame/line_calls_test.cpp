// The calls on lines and what they leave in the database. No window is linked.
#include <tavix/tavix.h>

#include <algorithm>
#include <utility>

#include "tests/support/device_records.h"
#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

using Lines = std::vector<LineRecord>;

using LineCalls = InstanceTest;

TEST_F(LineCalls, AreRefusedWithoutAnInstance) {
  Tavix_Del();
  EXPECT_EQ(-1, Tavix_EntLin(1, 2));
  EXPECT_EQ(-1, Tavix_ChgLinHid(1, 2, 101));
  EXPECT_EQ(-1, Tavix_DelEntLin(1, 2));
  EXPECT_EQ(-1, Tavix_ClrEntLin());
}

TEST_F(LineCalls, EnterOrdersTheKeysAndRemembersTheirOrder) {
  Tavix_SelLinHan(103);
  EXPECT_EQ(0, Tavix_EntLin(3, 5));
  EXPECT_EQ(0, Tavix_EntLin(9, 2));
  EXPECT_EQ(0, Tavix_EntLin(4, 4));
  EXPECT_EQ(0, Tavix_EntLin(-1, -7));
  EXPECT_EQ((Lines{{1, 3, 5, 0, 103}, {2, 2, 9, 1, 103}, {3, 4, 4, 0, 103}, {4, -7, -1, 1, 103}}),
            LinesOnDevice());
}

TEST_F(LineCalls, EnterTakesTheLegendSelectedThen) {
  EXPECT_EQ(0, Tavix_EntLin(1, 2));
  Tavix_SelLinHan(205);
  Tavix_SelPntHan(7);
  EXPECT_EQ(0, Tavix_EntLin(1, 3));
  EXPECT_EQ((Lines{{1, 1, 2, 0, -1}, {2, 1, 3, 0, 205}}), LinesOnDevice());
}

TEST_F(LineCalls, EnterLeavesALineThatIsThereAsItIs) {
  Tavix_SelLinHan(101);
  EXPECT_EQ(0, Tavix_EntLin(3, 5));
  Tavix_SelLinHan(102);
  EXPECT_EQ(0, Tavix_EntLin(5, 3));
  EXPECT_EQ(0, Tavix_EntLin(3, 5));
  EXPECT_EQ((Lines{{1, 3, 5, 0, 101}}), LinesOnDevice());
}

TEST_F(LineCalls, TellApartLinesThatShareTheSmallerKey) {
  for (int key = 2; key <= 40; ++key) EXPECT_EQ(0, Tavix_EntLin(key, 1));
  for (int key = 40; key >= 2; --key) EXPECT_EQ(0, Tavix_EntLin(1, key));
  EXPECT_EQ(39U, LinesOnDevice().size());
  EXPECT_EQ(0, Tavix_DelEntLin(1, 20));
  EXPECT_EQ(-1, Tavix_DelEntLin(1, 20));
  EXPECT_EQ(-1, Tavix_DelEntLin(1, 41));
  EXPECT_EQ(38U, LinesOnDevice().size());
}

TEST_F(LineCalls, KeepSixteenBitsOfAKey) {
  const struct {
    int a;
    int b;
    int same_a;
    int same_b;
  } rows[] = {
      {70000, 1, 4464, 1},        {2, 65536, 2, 0},           {32768, 3, -32768, 3},
      {-32769, 4, 32767, 4},      {65535, 5, -1, 5},          {0x7FFFFFFF, 6, -1, 6},
      {-0x7FFFFFFF - 1, 7, 0, 7}, {70000, 70001, 4464, 4465},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(0, Tavix_ClrEntLin());
    EXPECT_EQ(0, Tavix_EntLin(row.a, row.b));
    EXPECT_EQ(0, Tavix_EntLin(row.same_b, row.same_a));
    const Lines lines = LinesOnDevice();
    ASSERT_EQ(1U, lines.size()) << row.a << ' ' << row.b;
    EXPECT_EQ(std::min(row.same_a, row.same_b), lines[0].smaller);
    EXPECT_EQ(std::max(row.same_a, row.same_b), lines[0].larger);
    EXPECT_EQ(row.same_b < row.same_a ? 1 : 0, lines[0].larger_first) << "of the short keys";
    EXPECT_EQ(0, Tavix_DelEntLin(row.same_a, row.same_b));
  }
}

TEST_F(LineCalls, ChangeTheLegendWhicheverWayTheKeysAreGiven) {
  Tavix_SelLinHan(101);
  EXPECT_EQ(0, Tavix_EntLin(9, 2));
  EXPECT_EQ(0, Tavix_ChgLinHid(2, 9, 104));
  EXPECT_EQ((Lines{{1, 2, 9, 1, 104}}), LinesOnDevice());
  EXPECT_EQ(0, Tavix_ChgLinHid(9, 2, -32768));
  EXPECT_EQ((Lines{{1, 2, 9, 1, -32768}}), LinesOnDevice());
}

TEST_F(LineCalls, SayWhyThereIsNoSuchLine) {
  EXPECT_EQ(-3, Tavix_ChgLinHid(1, 2, 101)) << "there are no lines";
  EXPECT_EQ(-3, Tavix_DelEntLin(1, 2));
  ASSERT_EQ(0, Tavix_EntLin(2, 5));
  for (const auto& [a, b] : {std::pair{1, 2}, {5, 5}, {2, 2}, {2, 4}, {2, 6}, {3, 5}, {9, 9}}) {
    EXPECT_EQ(-1, Tavix_ChgLinHid(a, b, 101)) << a << ' ' << b;
    EXPECT_EQ(-1, Tavix_DelEntLin(a, b)) << a << ' ' << b;
  }
  EXPECT_EQ(0, Tavix_DelEntLin(5, 2));
  EXPECT_EQ(-3, Tavix_DelEntLin(5, 2)) << "there are no lines left";
}

TEST_F(LineCalls, GoOnNumberingAfterADeletion) {
  EXPECT_EQ(0, Tavix_EntLin(1, 2));
  EXPECT_EQ(0, Tavix_EntLin(1, 3));
  EXPECT_EQ(0, Tavix_DelEntLin(1, 3));
  EXPECT_EQ(0, Tavix_EntLin(1, 3));
  EXPECT_EQ((Lines{{1, 1, 2, 0, -1}, {3, 1, 3, 0, -1}}), LinesOnDevice());
}

TEST_F(LineCalls, ClearRemovesAllAndNumbersAnew) {
  EXPECT_EQ(0, Tavix_ClrEntLin()) << "of no lines";
  for (int key = 2; key < 30; ++key) EXPECT_EQ(0, Tavix_EntLin(1, key));
  EXPECT_EQ(0, Tavix_ClrEntLin());
  EXPECT_TRUE(LinesOnDevice().empty());
  EXPECT_EQ(0, Tavix_EntLin(8, 7));
  EXPECT_EQ((Lines{{1, 7, 8, 1, -1}}), LinesOnDevice());
}

TEST_F(LineCalls, NeedNoWindowForAutoRedraw) {
  Tavix_DrwFlg(1);
  EXPECT_EQ(0, Tavix_EntLin(1, 2));
  EXPECT_EQ(-1, Tavix_ChgLinHid(1, 2, 105)) << "the redraw is refused";
  EXPECT_EQ((Lines{{1, 1, 2, 0, 105}}), LinesOnDevice()) << "the change stays";
  EXPECT_EQ(0, Tavix_ChgLinHid(1, 2, 105)) << "nothing changed, nothing is drawn";
  EXPECT_EQ(0, Tavix_DelEntLin(1, 2)) << "never redraws";
  EXPECT_EQ(0, Tavix_ClrEntLin());
}

}  // namespace
}  // namespace tavix::test
