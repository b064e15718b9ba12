// The one-bit picture's calls: sizes, pixels beyond the edges, the border, and its lifetime.
#include <tavix/tavix.h>

#include "tests/draw/group/group_test.h"
#include "tests/support/picture_compare.h"

namespace tavix::test {
namespace {

class GroupReading : public GroupTest {
 protected:
  // Without the frame's outline.
  static void ExpectNoInkAround(int height, int width) {
    for (const int row : {-1000000, -1, height, height + 1, 1000000}) {
      for (const int column : {-1, 0, 1, width / 2}) EXPECT_EQ(0, Ink(row, column)) << row;
    }
    for (const int column : {-1000000, -33, -1, width, width + 1, width + 31, 1000000}) {
      for (const int row : {-1, 0, 1, height / 2}) EXPECT_EQ(0, Ink(row, column)) << column;
    }
  }
};

TEST_F(GroupReading, HasNoInkOutsideOfThePicture) {
  // A line across the whole picture, and beyond.
  short wide = 0;
  ASSERT_EQ(0, Tavix_AddLinHan(101, 0, 0, 0, 300, 0, &wide));
  ASSERT_EQ(0, Tavix_FigStt(1, wide));
  ASSERT_EQ(0, Tavix_FigMdlLin(0.0, -100.0, 0.0, 100.0));
  ASSERT_EQ(0, Tavix_FigEnd());
  for (const int width : {31, 32, 33, 240}) {
    ASSERT_EQ(0, Tavix_GrpStt(45, width));
    EXPECT_EQ(1, Ink(22, 0)) << width;
    EXPECT_EQ(1, Ink(22, width - 1)) << width;
    ExpectNoInkAround(45, width);
  }
}

TEST_F(GroupReading, TheFramesOutlineIsABorderOfTwoPixels) {
  ASSERT_EQ(0, Tavix_SetWak(1, 254, 2970, 254, 2100));
  constexpr int kRows = 150;
  constexpr int kColumns = 170;
  const Picture plain = Build(kRows, kColumns);
  Picture bordered = plain;
  for (int y = 0; y < kRows; ++y) {
    for (int x = 0; x < kColumns; ++x) {
      if (y > 1 && y < kRows - 2 && x > 1 && x < kColumns - 2) continue;
      bordered.pixels[static_cast<std::size_t>(y * kColumns + x)] = 0;
    }
  }
  ASSERT_FALSE(plain == bordered);
  ASSERT_EQ(0, Tavix_WakDsp(1));
  EXPECT_TRUE(SamePicture(bordered, Read(kRows, kColumns)));
  ASSERT_EQ(0, Tavix_SetWak(0, 254, 2970, 254, 2100));  // the outline shows in frame mode only
  EXPECT_TRUE(SamePicture(plain, Read(kRows, kColumns)));
  ExpectNoInkAround(kRows, kColumns);
}

// A column at the width or beyond it is settled first, then the border, then what is no pixel.
TEST_F(GroupReading, TheBorderGoesOnAboveBelowAndLeftOfThePicture) {
  constexpr int kRows = 150;
  constexpr int kColumns = 170;
  ASSERT_EQ(0, Tavix_SetWak(1, 254, 2970, 254, 2100));
  ASSERT_EQ(0, Tavix_WakDsp(1));
  ASSERT_EQ(0, Tavix_GrpStt(kRows, kColumns));
  const struct {
    int row;
    int column;
    int ink;
  } rows[] = {{0, kColumns - 1, 1},
              {0, kColumns, 0},
              {kRows - 1, kColumns, 0},
              {-1, kColumns, 0},
              {kRows, kColumns, 0},
              {-1, 80, 1},
              {-1000000, 80, 1},
              {kRows, 80, 0},
              {1000000, 80, 0},
              {kRows, 1, 1},
              {kRows, 2, 0},
              {kRows, -1, 1},
              {kRows, kColumns - 3, 0},
              {kRows, kColumns - 2, 1},
              {1000000, kColumns - 1, 1},
              {75, -1, 1},
              {75, -1000000, 1}};
  for (const auto& [row, column, ink] : rows) {
    int given = 7;
    EXPECT_EQ(0, Tavix_GrpGet(row, column, &given));
    EXPECT_EQ(given, ink) << row << ", " << column;
  }
  EXPECT_EQ(0, Tavix_GrpEnd());
  for (const auto& [row, column, ink] : rows) EXPECT_EQ(0, Ink(row, column)) << row << column;
}

TEST_F(GroupReading, ASizeOfNoneOrLessIsNoPicture) {
  const struct {
    int height;
    int width;
  } rows[] = {{0, 0}, {0, 100}, {100, 0}, {-1, -1}, {-100, 100}, {100, -100}};
  for (const auto& row : rows) {
    ASSERT_EQ(0, Tavix_GrpStt(100, 100));
    EXPECT_EQ(0, Tavix_GrpStt(row.height, row.width));
    EXPECT_EQ(0, CountInk(Read(140, 140))) << row.height << " by " << row.width;
    EXPECT_EQ(0, Tavix_GrpEnd());
  }
}

TEST_F(GroupReading, ASecondPictureTakesTheFirstOnesPlace) {
  Build(300, 300);
  ASSERT_EQ(1, Ink(70, 70));
  const Picture small = Build(80, 90);
  ExpectNoInkAround(80, 90);
  EXPECT_TRUE(SamePicture(small, Read(80, 90)));
}

TEST_F(GroupReading, ManyPicturesLeaveNoObjectsBehind) {
  ASSERT_EQ(0, Enter(1, {10.0, 20.0}, AddLegend({8, 9, 12, 0, 1, 0}), L"A"));
  // More than a process may have.
  for (int round = 0; round < 25000; ++round) ASSERT_EQ(0, Tavix_GrpStt(8, 8));
  ASSERT_EQ(0, Tavix_GrpStt(100, 100));
  EXPECT_EQ(1, Ink(70, 70));
}

TEST_F(GroupReading, TheEndFreesThePicture) {
  Build(200, 200);
  ASSERT_EQ(1, Ink(70, 70));
  EXPECT_EQ(0, Tavix_GrpEnd());
  EXPECT_EQ(0, CountInk(Read(200, 200)));
  EXPECT_EQ(0, Tavix_GrpEnd());
  EXPECT_EQ(0, Tavix_GrpStt(200, 200));
  EXPECT_EQ(1, Ink(70, 70));
}

TEST_F(GroupReading, LaterChangesAreNotInThePicture) {
  const Picture before = Build(200, 200);
  ASSERT_EQ(0, Enter(1, {10.0, 20.0}, AddLegend({8, 9, 0, 0, 1, 0})));
  ASSERT_EQ(0, Tavix_Drw(0));
  EXPECT_TRUE(SamePicture(before, Read(200, 200)));
}

TEST_F(GroupReading, NeedsAWindow) {
  Tavix_SetIdx(1);
  int ink = 7;
  EXPECT_EQ(-1, Tavix_GrpStt(10, 10));
  EXPECT_EQ(-1, Tavix_GrpGet(0, 0, &ink));
  EXPECT_EQ(7, ink);
  EXPECT_EQ(-1, Tavix_GrpEnd());
  ASSERT_EQ(0, Tavix_Crt());
  EXPECT_EQ(-1, Tavix_GrpStt(10, 10));
}

TEST_F(GroupReading, EveryPlotHasAPictureOfItsOwn) {
  Build(200, 200);
  Tavix_SetIdx(1);
  MakePlot(100, 100);
  EXPECT_EQ(0, Ink(70, 70));
  Build(80, 80);
  EXPECT_EQ(0, Tavix_GrpEnd());
  Tavix_SetIdx(0);
  EXPECT_EQ(1, Ink(70, 70));
}

}  // namespace
}  // namespace tavix::test
