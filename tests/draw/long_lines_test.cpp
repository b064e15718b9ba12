// Lines far longer than the window: they cost what shows of them.
#include <algorithm>

#include "tests/support/line_plot_test.h"

namespace tavix::test {
namespace {

constexpr ULONGLONG kHang = 20'000;  // milliseconds; walking every piece would take many minutes
constexpr std::uint32_t kRed = 0xFF0000;

class LongLines : public LinePlotTest {
 protected:
  // A redraw that is over at once, as seen from a hang.
  static Picture DrawnAtOnce() {
    const ULONGLONG start = ::GetTickCount64();
    Picture picture = Redrawn();
    EXPECT_LT(::GetTickCount64() - start, kHang);
    return picture;
  }

  // The lengths of the runs of ink in a row, those cut by the border left out.
  static std::vector<int> Runs(const Picture& picture, int row) {
    std::vector<int> runs;
    int run = 0;
    for (int x = 0; x < picture.width; ++x) {
      if (picture.At(x, row) == kRed) {
        ++run;
      } else if (run > 0) {
        runs.push_back(run);
        run = 0;
      }
    }
    if (!runs.empty() && picture.At(0, row) == kRed) runs.erase(runs.begin());
    return runs;
  }
};

// The reference walks every one of the pieces too, which takes it a while.
TEST_F(LongLines, AreTheSameAsPieceByPiece) {
  ASSERT_EQ(0, Tavix_Zom1(0.0, 0.0, 0.9));
  const RawView view{kWidth, kHeight, kHeight * (1.0 / 1.8)};  // 100 pixels a metre
  const LineLegend look{105, 4, 2, 2, 1, RGB(255, 0, 0)};
  Tavix_SelLinHan(AddLineLegend(look));
  const struct {
    Ground start;
    Ground end;
  } rows[] = {{{0.0, -700.0}, {0.0, 700.0}},
              {{813.3, -771.0}, {-812.9, 771.25}},
              {{-500.0, 0.5}, {0.25, 0.5}},
              {{0.123, 0.456}, {-4321.0, 900.0}}};
  const RawCanvas canvas(Window());
  for (const auto& [start, end] : rows) {
    Join(start, end);
    DrawRawLine(canvas.Dc(), view, look, start, end);
  }
  EXPECT_TRUE(SamePicture(canvas.Take(), DrawnAtOnce()));
}

TEST_F(LongLines, OfTenKilometresAtTheLargestScaleAreDrawnAtOnce) {
  ASSERT_EQ(0, Tavix_Zom1(0.0, 0.0, 0.0001));  // cut to 100000 pixels a metre
  for (const int kind : {102, 103, 104, 105}) {
    Tavix_DrwClr();
    Tavix_SelLinHan(AddLineLegend({kind, 4, 2, 2, 1, RGB(255, 0, 0)}));
    Join({0.0, -5000.0}, {0.0, 5000.0});
    const std::vector<int> runs = Runs(DrawnAtOnce(), kHeight / 2);
    ASSERT_GT(runs.size(), 30U) << kind;
    // Truncation may take a pixel from a dash or add one, and joins the two at the middle.
    const int longest = *std::max_element(runs.begin(), runs.end());
    EXPECT_LE(longest, kind == 103 ? 4 : 6) << kind;
    EXPECT_GE(longest, kind == 103 ? 2 : 4) << kind;
  }
}

TEST_F(LongLines, MayBeAnyLengthAndSlope) {
  for (const double scale_radius : {0.0001, 1.0, 1e6}) {
    ASSERT_EQ(0, Tavix_Zom1(0.0, 0.0, scale_radius));
    for (const int kind : {101, 102, 103, 104, 105}) {
      Tavix_DrwClr();
      Tavix_SelLinHan(AddLineLegend({kind, 1, 1, 0, 1, RGB(255, 0, 0)}));
      Join({-1e7, -1e7}, {1e7, 1e7});
      Join({-1e15, 3.0}, {1e15, -1e3});
      Join({1e300, 1e300}, {-1e300, -1e300});
      Join({0.0, 0.0}, {1e-300, 1e-300});
      DrawnAtOnce();
    }
  }
}

TEST_F(LongLines, WithoutAnyLengthInThePatternEnd) {
  for (const int kind : {102, 104, 105}) {
    Tavix_DrwClr();
    Tavix_SelLinHan(AddLineLegend({kind, 0, 0, 0, 1, RGB(255, 0, 0)}));
    Join({0.0, -5000.0}, {0.0, 5000.0});
    Join({10.0, -40.0}, {-10.0, 40.0});
    const RawCanvas canvas(Window());
    {
      const RawSelection pen(canvas.Dc(), ::CreatePen(PS_SOLID, 1, RGB(255, 0, 0)));
      DrawRawSegment(canvas.Dc(), {80, 80}, {80, 80});  // a dot where it begins
    }
    EXPECT_TRUE(SamePicture(canvas.Take(), DrawnAtOnce())) << kind;
  }
}

// Its only dot lies beyond the 32-bit range of pixels. The dot's second pixel, counted up from the
// end of the range, was at its other end, with the window between them.
TEST_F(LongLines, WithoutAnyLengthInThePatternLeaveNoTraceOfADotFarAway) {
  for (const int kind : {102, 104, 105}) {
    Tavix_DrwClr();
    Tavix_SelLinHan(AddLineLegend({kind, 0, 0, 0, 3, RGB(255, 0, 0)}));
    Join({0.0, 3e9}, {0.0, -50.0});
    const RawCanvas canvas(Window());
    EXPECT_TRUE(SamePicture(canvas.Take(), DrawnAtOnce())) << kind;
  }
}

}  // namespace
}  // namespace tavix::test
