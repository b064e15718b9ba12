// Figure files that something else has written to.
#include <tavix/tavix.h>

#include "tests/support/figure_bytes.h"
#include "tests/support/legend_bytes.h"
#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"

namespace tavix::test {
namespace {

constexpr std::uint32_t kBackground = 0xFFFFFF;
constexpr std::size_t kRecord = 24;
constexpr std::size_t kFigurePoints = 32;  // bytes: each figure here has two points

// Three figures that touch nowhere: a line, a circle, a dashed line.
class DamagedFigures : public PlotTest {
 protected:
  void MakeFigures() {
    ASSERT_NO_FATAL_FAILURE(MakePlot(120, 90));
    short solid = 0;
    short dashed = 0;
    Tavix_AddLinHan(101, 0, 0, 0, 1, RGB(255, 0, 0), &solid);
    Tavix_AddLinHan(102, 4, 2, 0, 1, RGB(0, 0, 255), &dashed);
    const std::vector<std::function<void()>> figures = {[&] {
                                                          Tavix_FigStt(1, solid);
                                                          Tavix_FigMdlLin(30, -40, 30, 40);
                                                        },
                                                        [&] {
                                                          Tavix_FigStt(2, solid);
                                                          Tavix_FigMdlCir(0, 0, 15);
                                                        },
                                                        [&] {
                                                          Tavix_FigStt(3, dashed);
                                                          Tavix_FigMdlLin(-30, -40, -30, 40);
                                                        }};
    for (const auto& make : figures) {
      Tavix_DrwClr();
      make();
      alone_.push_back(Redrawn());
      ASSERT_LT(CountPixels(alone_.back(), kBackground), 120 * 90 - 20);
    }
    Tavix_DrwClr();
    for (const auto& make : figures) make();
    index_ = ReadBytes(IndexFile());
    points_ = ReadBytes(CoordinateFile());
    ASSERT_EQ(3 * kRecord, index_.size());
    ASSERT_EQ(3 * kFigurePoints, points_.size());
    Tavix_SetAng(0);
  }

  // Every pixel of a figure shows something; a damaged figure may well be drawn over it.
  void ExpectDrawn(const Picture& shown, std::size_t figure) const {
    for (std::size_t i = 0; i < shown.pixels.size(); ++i) {
      if (alone_[figure].pixels[i] == kBackground) continue;
      ASSERT_NE(kBackground, shown.pixels[i]) << "figure " << figure << " pixel " << i;
    }
  }

  // The view of the figures, after a fit to damaged data.
  static Picture FitAndShow() {
    Tavix_Drw(0);
    Tavix_Zom(-45, -60, 45, 60);
    return Shown();
  }

  static std::string With(std::string bytes, std::size_t place, char value) {
    bytes[place] = value;
    return bytes;
  }

  // Changes each byte of a file in many ways; all figures but the one it belongs to stay.
  void ExpectOneHarmedByEachByte(const std::filesystem::path& file, const std::string& bytes,
                                 std::size_t bytes_of_a_figure) const {
    for (std::size_t place = 0; place < bytes.size(); ++place) {
      for (const int change : {0x00, 0x01, 0x7F, 0x80, 0xFF}) {
        SCOPED_TRACE(testing::Message() << "byte " << place << " is " << change);
        WriteBytes(file, With(bytes, place, static_cast<char>(change)));
        const Picture shown = FitAndShow();
        for (std::size_t figure = 0; figure < 3; ++figure) {
          if (figure == place / bytes_of_a_figure) continue;
          ASSERT_NO_FATAL_FAILURE(ExpectDrawn(shown, figure));
        }
        EXPECT_EQ(0, Tavix_DelFig(12345));
      }
    }
  }

  std::vector<Picture> alone_;
  std::string index_;
  std::string points_;
};

TEST_F(DamagedFigures, AnIndexByteHarmsNoOtherFigure) {
  ASSERT_NO_FATAL_FAILURE(MakeFigures());
  ExpectOneHarmedByEachByte(IndexFile(), index_, kRecord);
}

TEST_F(DamagedFigures, ACoordinateByteHarmsNoOtherFigure) {
  ASSERT_NO_FATAL_FAILURE(MakeFigures());
  ExpectOneHarmedByEachByte(CoordinateFile(), points_, kFigurePoints);
}

TEST_F(DamagedFigures, OfATruncatedIndexTheWholeRecordsCount) {
  ASSERT_NO_FATAL_FAILURE(MakeFigures());
  for (std::size_t size = 0; size < index_.size(); ++size) {
    SCOPED_TRACE(size);
    WriteBytes(IndexFile(), index_.substr(0, size));
    const Picture shown = FitAndShow();
    for (std::size_t figure = 0; figure < size / kRecord; ++figure) {
      ASSERT_NO_FATAL_FAILURE(ExpectDrawn(shown, figure));
    }
    if (size < kRecord) {
      EXPECT_EQ(120 * 90, CountPixels(shown, kBackground));
    }
    EXPECT_EQ(size < kRecord ? -1 : 0, Tavix_DelFig(12345));
  }
}

TEST_F(DamagedFigures, OfTruncatedCoordinatesTheWholeFiguresCount) {
  ASSERT_NO_FATAL_FAILURE(MakeFigures());
  for (std::size_t size = 0; size < points_.size(); ++size) {
    SCOPED_TRACE(size);
    WriteBytes(CoordinateFile(), points_.substr(0, size));
    const Picture shown = FitAndShow();
    const RawCanvas nothing(Window());
    const std::size_t whole = size / kFigurePoints;
    for (std::size_t figure = 0; figure < whole; ++figure) {
      ASSERT_NO_FATAL_FAILURE(ExpectDrawn(shown, figure));
    }
    if (whole > 1) continue;
    EXPECT_TRUE(SamePicture(whole == 0 ? nothing.Take() : alone_[0], shown));
  }
}

TEST_F(DamagedFigures, ANewFigureTakesThePlaceOfARecordCutShort) {
  ASSERT_NO_FATAL_FAILURE(MakeFigures());
  WriteBytes(IndexFile(), index_.substr(0, 2 * kRecord + 5));
  Tavix_FigStt(9, 101);
  Tavix_FigMdlLin(1, 2, 3, 4);
  EXPECT_EQ(index_.substr(0, 2 * kRecord) + WordBytes(9, 101, 2, 0, 96, 0), ReadBytes(IndexFile()));
}

}  // namespace
}  // namespace tavix::test
