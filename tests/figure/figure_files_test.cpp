// The two files in which an instance keeps its figures.
#include <tavix/tavix.h>

#include <limits>

#include "tests/support/figure_bytes.h"
#include "tests/support/legend_bytes.h"
#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

const std::string kDeletedRecord = WordBytes(0, 0, 0, 0, 0, 1);

class FigureFiles : public LibraryTest {
 protected:
  FigureFiles() { EXPECT_EQ(0, Tavix_Crt()); }

  static std::string Index() { return ReadBytes(IndexFile()); }
  static std::string Coordinates() { return ReadBytes(CoordinateFile()); }
};

TEST_F(FigureFiles, LieInTheRootFolderWhileTheInstanceLives) {
  for (int index = 0; index < kInstances; ++index) {
    Tavix_SetIdx(index);
    if (index > 0) {
      EXPECT_FALSE(std::filesystem::exists(IndexFile(index)));
      EXPECT_EQ(0, Tavix_Crt());
    }
    EXPECT_TRUE(std::filesystem::exists(IndexFile(index))) << index;
    EXPECT_TRUE(std::filesystem::exists(CoordinateFile(index))) << index;
    EXPECT_EQ(0U, std::filesystem::file_size(IndexFile(index)));
    EXPECT_EQ(0U, std::filesystem::file_size(CoordinateFile(index)));
  }
  Tavix_SetIdx(2);
  Tavix_Del();
  EXPECT_FALSE(std::filesystem::exists(IndexFile(2)));
  EXPECT_FALSE(std::filesystem::exists(CoordinateFile(2)));
  EXPECT_TRUE(std::filesystem::exists(IndexFile(3)));
}

TEST_F(FigureFiles, BeginEmptyWhateverWasLeftBehind) {
  Tavix_Del();
  WriteBytes(IndexFile(), WordBytes(1, 101, 2, 0, 0, 0));
  WriteBytes(CoordinateFile(), NumberBytes(0, 0, 1, 1));
  ASSERT_EQ(0, Tavix_Crt());
  EXPECT_EQ("", Index());
  EXPECT_EQ("", Coordinates());
}

TEST_F(FigureFiles, ALineIsARecordAndTwoPoints) {
  EXPECT_EQ(0, Tavix_FigStt(7, 101));
  EXPECT_EQ(0, Tavix_FigMdlLin(1.5, -2.25, 3, 4e6));
  EXPECT_EQ(WordBytes(7, 101, 2, 0, 0, 0), Index());
  EXPECT_EQ(NumberBytes(1.5, -2.25, 3, 4e6), Coordinates());
  EXPECT_EQ(0, Tavix_FigEnd());
  EXPECT_EQ(WordBytes(7, 101, 2, 0, 0, 0), Index());
}

TEST_F(FigureFiles, ACircleIsItsCentreAndItsRadius) {
  Tavix_FigStt(-1, 205);
  EXPECT_EQ(0, Tavix_FigMdlCir(10, 20, 5.5));
  EXPECT_EQ(WordBytes(-1, 205, 2, 1, 0, 0), Index());
  EXPECT_EQ(NumberBytes(10, 20, 5.5, 0), Coordinates());
}

TEST_F(FigureFiles, APolylineIsItsPointsInOrder) {
  const double x[] = {1, 2, 3};
  const double y[] = {4, 5, 6};
  Tavix_FigStt(2, 102);
  EXPECT_EQ(0, Tavix_FigMdlPly(3, x, y));
  EXPECT_EQ(WordBytes(2, 102, 3, 0, 0, 0), Index());
  EXPECT_EQ(NumberBytes(1, 4, 2, 5, 3, 6), Coordinates());
}

TEST_F(FigureFiles, APolylineOfNoPointsIsKeptAsARecord) {
  Tavix_FigStt(2, 102);
  EXPECT_EQ(0, Tavix_FigMdlPly(0, nullptr, nullptr));
  EXPECT_EQ(0, Tavix_FigMdlPly(-3, nullptr, nullptr));
  EXPECT_EQ(WordBytes(2, 102, 0, 0, 0, 0) + WordBytes(2, 102, -3, 0, 0, 0), Index());
  EXPECT_EQ("", Coordinates());
}

TEST_F(FigureFiles, PromisedPointsMustBeThere) {
  const double some[] = {1, 2};
  EXPECT_EQ(-1, Tavix_FigMdlPly(2, nullptr, some));
  EXPECT_EQ(-1, Tavix_FigMdlPly(2, some, nullptr));
  EXPECT_EQ("", Index());
}

TEST_F(FigureFiles, ACurveIsKeptAsAPolyline) {
  Tavix_FigStt(3, 101);
  EXPECT_EQ(0, Tavix_FigMdlArc(0, 0, 6, 0, 50));  // shorter than 5 degrees twice over
  EXPECT_EQ(WordBytes(3, 101, 3, 0, 0, 0), Index());
  ASSERT_EQ(48U, Coordinates().size());
  EXPECT_EQ(NumberBytes(0, 0), Coordinates().substr(0, 16));
  EXPECT_EQ(NumberBytes(6, 0), Coordinates().substr(32));

  EXPECT_EQ(0, Tavix_FigMdlClo(0, 0, 35, 5, 140, 200, 160));  // from loose to tight: its ends
  EXPECT_EQ(WordBytes(3, 101, 2, 0, 48, 0), Index().substr(24));
  EXPECT_EQ(NumberBytes(0, 0, 35, 5), Coordinates().substr(48));
}

TEST_F(FigureFiles, ACurveThatIsNoneWritesNothing) {
  EXPECT_EQ(-1, Tavix_FigMdlArc(0, 0, 101, 0, 50));
  EXPECT_EQ(-1, Tavix_FigMdlArc(5, 5, 5, 5, 50));
  EXPECT_EQ(-1, Tavix_FigMdlClo(0, 0, 10, 10, 0, 1000, 1));  // of more than ten million points
  EXPECT_EQ(-1, Tavix_FigMdlClo(0, 0, 10, 10, 0, std::numeric_limits<double>::infinity(), 1));
  EXPECT_EQ("", Index());
  EXPECT_EQ("", Coordinates());
}

// 5000 radians at a degree each.
TEST_F(FigureFiles, AClothoidThatTurnsFarIsKept) {
  Tavix_FigStt(1, 101);
  EXPECT_EQ(0, Tavix_FigMdlClo(0, 0, 10, 10, 0, 100, 1));
  constexpr int kPoints = 286480;
  EXPECT_EQ(WordBytes(1, 101, kPoints, 0, 0, 0), Index());
  EXPECT_EQ(std::size_t{kPoints} * 16, Coordinates().size());
}

TEST_F(FigureFiles, ARecordNamesThePlaceOfItsFirstPoint) {
  Tavix_FigStt(1, 101);
  Tavix_FigMdlLin(0, 0, 1, 1);
  Tavix_FigMdlCir(2, 2, 3);
  Tavix_FigMdlPly(0, nullptr, nullptr);
  Tavix_FigMdlLin(4, 4, 5, 5);
  EXPECT_EQ(WordBytes(1, 101, 2, 0, 0, 0) + WordBytes(1, 101, 2, 1, 32, 0) +
                WordBytes(1, 101, 0, 0, 64, 0) + WordBytes(1, 101, 2, 0, 64, 0),
            Index());
}

TEST_F(FigureFiles, WithoutAStartANumberOfZeroAndNoLegend) {
  Tavix_FigMdlLin(0, 0, 1, 1);
  EXPECT_EQ(WordBytes(0, -1, 2, 0, 0, 0), Index());
}

TEST_F(FigureFiles, TheNumbersHoldUntilTheNextStart) {
  Tavix_FigStt(1, 101);
  Tavix_FigMdlLin(0, 0, 1, 1);
  Tavix_FigEnd();
  Tavix_FigMdlLin(0, 0, 1, 1);
  Tavix_FigStt(2, 102);
  Tavix_FigMdlLin(0, 0, 1, 1);
  EXPECT_EQ(WordBytes(1, 101, 2, 0, 0, 0) + WordBytes(1, 101, 2, 0, 32, 0) +
                WordBytes(2, 102, 2, 0, 64, 0),
            Index());
}

TEST_F(FigureFiles, ClearingEmptiesThemAndForgetsTheNumbers) {
  Tavix_FigStt(5, 101);
  Tavix_FigMdlLin(0, 0, 1, 1);
  EXPECT_EQ(0, Tavix_DrwClr());
  EXPECT_EQ("", Index());
  EXPECT_EQ("", Coordinates());
  EXPECT_TRUE(std::filesystem::exists(IndexFile()));
  EXPECT_EQ(-1, Tavix_DelFig(5));
  Tavix_FigMdlLin(2, 2, 3, 3);
  EXPECT_EQ(WordBytes(0, -1, 2, 0, 0, 0), Index());
  EXPECT_EQ(NumberBytes(2, 2, 3, 3), Coordinates());
}

TEST_F(FigureFiles, DeletingMarksEveryRecordOfTheNumber) {
  Tavix_FigStt(1, 101);
  Tavix_FigMdlLin(0, 0, 1, 1);
  Tavix_FigStt(2, 102);
  Tavix_FigMdlLin(0, 0, 1, 1);
  Tavix_FigStt(1, 103);
  Tavix_FigMdlCir(0, 0, 1);
  const std::string points = Coordinates();
  EXPECT_EQ(0, Tavix_DelFig(1));
  EXPECT_EQ(kDeletedRecord + WordBytes(2, 102, 2, 0, 32, 0) + kDeletedRecord, Index());
  EXPECT_EQ(points, Coordinates());
  // A new figure comes after the deleted ones, and the number is free again.
  Tavix_FigMdlLin(0, 0, 1, 1);
  EXPECT_EQ(WordBytes(1, 103, 2, 0, 96, 0), Index().substr(72));
}

TEST_F(FigureFiles, DeletingTellsOnlyWhetherThereAreRecords) {
  EXPECT_EQ(-1, Tavix_DelFig(1));
  Tavix_FigStt(1, 101);
  Tavix_FigMdlLin(0, 0, 1, 1);
  EXPECT_EQ(0, Tavix_DelFig(99));
  EXPECT_EQ(WordBytes(1, 101, 2, 0, 0, 0), Index());
  EXPECT_EQ(0, Tavix_DelFig(1));
  EXPECT_EQ(0, Tavix_DelFig(1));  // the deleted record is still one
  EXPECT_EQ(kDeletedRecord, Index());
}

// A deleted record reads as number 0, and must not be taken for a figure of that number.
TEST_F(FigureFiles, FigureZeroIsNotADeletedOne) {
  Tavix_FigStt(0, 101);
  Tavix_FigMdlLin(0, 0, 1, 1);
  Tavix_FigStt(1, 101);
  Tavix_FigMdlLin(0, 0, 1, 1);
  Tavix_DelFig(1);
  EXPECT_EQ(0, Tavix_DelFig(0));
  EXPECT_EQ(kDeletedRecord + kDeletedRecord, Index());
}

TEST_F(FigureFiles, EveryInstanceHasItsOwn) {
  Tavix_FigStt(1, 101);
  Tavix_FigMdlLin(0, 0, 1, 1);
  Tavix_SetIdx(1);
  ASSERT_EQ(0, Tavix_Crt());
  Tavix_FigMdlCir(0, 0, 1);
  EXPECT_EQ(WordBytes(0, -1, 2, 1, 0, 0), ReadBytes(IndexFile(1)));
  EXPECT_EQ(WordBytes(1, 101, 2, 0, 0, 0), ReadBytes(IndexFile(0)));
}

}  // namespace
}  // namespace tavix::test
