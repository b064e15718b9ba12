// The one-bit picture's three calls in the order a host makes them.
#include <tavix/tavix.h>

#include <limits>

#include "tests/support/plot_test.h"

namespace tavix::test {
namespace {

class GroupCalls : public PlotTest {
 protected:
  void SetUp() override {
    MakePlot(240, 180);
    // A line 21 pixels thick from the left edge to the right, through the middle.
    short thick = 0;
    ASSERT_EQ(0, Tavix_AddLinHan(101, 0, 0, 0, 21, 0, &thick));
    ASSERT_EQ(0, Tavix_FigStt(1, thick));
    ASSERT_EQ(0, Tavix_FigMdlLin(0.0, -120.0, 0.0, 120.0));
    ASSERT_EQ(0, Tavix_FigEnd());
  }
};

TEST_F(GroupCalls, TellInkFromPaperUntilTheEnd) {
  const struct {
    int row;
    int column;
    int ink;
  } rows[] = {{90, 20, 1}, {90, 220, 1},  {84, 120, 1},  {96, 120, 1}, {60, 200, 0},
              {5, 5, 0},   {179, 239, 0}, {180, 120, 0}, {90, 240, 0}, {90, -1, 0}};
  EXPECT_EQ(0, Tavix_GrpStt(180, 240));
  int ink = 7;
  for (const auto& row : rows) {
    EXPECT_EQ(0, Tavix_GrpGet(row.row, row.column, &ink));
    EXPECT_EQ(row.ink, ink) << row.row << ", " << row.column;
  }
  EXPECT_EQ(0, Tavix_GrpEnd());
  for (const auto& row : rows) {
    EXPECT_EQ(0, Tavix_GrpGet(row.row, row.column, &ink));
    EXPECT_EQ(0, ink) << row.row << ", " << row.column;
  }
}

TEST_F(GroupCalls, NeedTheWindowOfTheInstance) {
  ASSERT_EQ(0, Tavix_GrpStt(180, 240));
  Tavix_SetIdx(1);
  ASSERT_EQ(0, Tavix_Crt());
  int ink = 7;
  EXPECT_EQ(-1, Tavix_GrpStt(180, 240));
  EXPECT_EQ(-1, Tavix_GrpGet(90, 20, &ink));
  EXPECT_EQ(7, ink);
  EXPECT_EQ(-1, Tavix_GrpEnd());
  Tavix_SetIdx(0);
  EXPECT_EQ(0, Tavix_GrpGet(90, 20, &ink));
  EXPECT_EQ(1, ink) << "the other instance's picture stays";
}

// 256 MiB are 8192 rows of 262144 pixels.
TEST_F(GroupCalls, OfASizeBeyondMemoryAreRefusedAndHoldNoPicture) {
  constexpr int kMost = std::numeric_limits<int>::max();
  const struct {
    int height;
    int width;
  } rows[] = {{8192, 262145},   {8193, 262144}, {8193, 262113}, {46500, 46500},
              {131072, 131072}, {kMost, kMost}, {kMost, 1},     {1, kMost}};
  for (const auto& [height, width] : rows) {
    ASSERT_EQ(0, Tavix_GrpStt(180, 240));
    EXPECT_EQ(height == 1 ? 0 : -1, Tavix_GrpStt(height, width)) << height << " by " << width;
    int ink = 7;
    EXPECT_EQ(0, Tavix_GrpGet(90, 20, &ink));
    EXPECT_EQ(0, ink) << height << " by " << width;
    EXPECT_EQ(0, Tavix_GrpEnd());
  }
}

TEST_F(GroupCalls, OfTheLargestSizeHaveAPicture) {
  ASSERT_EQ(0, Tavix_GrpStt(8192, 262144));
  int ink = 7;
  EXPECT_EQ(0, Tavix_GrpGet(4096, 131072, &ink));
  EXPECT_EQ(1, ink) << "the thick line's middle";
  EXPECT_EQ(0, Tavix_GrpGet(8191, 262143, &ink));
  EXPECT_EQ(0, ink);
  EXPECT_EQ(0, Tavix_GrpEnd());
}

}  // namespace
}  // namespace tavix::test
