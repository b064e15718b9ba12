// The marks of points, pixel by pixel.
#include <tavix/tavix.h>

#include <set>
#include <string>
#include <utility>

#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"

namespace tavix::test {
namespace {

constexpr int kWidth = 320;
constexpr int kHeight = 240;

// Compares one mark in the middle of the window with the same drawn by raw calls.
class PointMarks : public PlotTest, public testing::WithParamInterface<int> {
 protected:
  void SetUp() override { MakePlot(kWidth, kHeight); }

  void ExpectMark(const PointLegend& symbol, POINT at) {
    ASSERT_EQ(0, Enter(1, GroundAt(at), AddLegend(symbol)));
    RawCanvas canvas(Window());
    DrawRawPoint(canvas.Dc(), symbol, at);
    EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()))
        << "kind " << symbol.kind << ", size " << symbol.size << ", width " << symbol.width;
  }
};

TEST_P(PointMarks, HaveTheirShapeAtAnySize) {
  for (const int size : {1, 2, 3, 4, 5, 7, 8, 9, 10, 11, 12, 13, 16, 31, 50, 101}) {
    ExpectMark({GetParam(), size, 0, 0, 1, RGB(0, 0, 255)}, {150, 110});
  }
}

TEST_P(PointMarks, OfNoSizeAreNotDrawn) {
  const Picture empty = Redrawn();
  for (const int size : {0, -1, -2, -10, -1000}) {
    ASSERT_EQ(0, Enter(1, GroundAt({150, 110}), AddLegend({GetParam(), size, 0, 0, 1, 0})));
    EXPECT_TRUE(SamePicture(empty, Redrawn())) << size;
  }
}

TEST_P(PointMarks, TakeThePensWidth) {
  for (const int width : {0, 1, 2, 3, 4, 7}) {
    ExpectMark({GetParam(), 20, 0, 0, width, RGB(255, 0, 0)}, {150, 110});
    ExpectMark({GetParam(), 21, 0, 0, width, RGB(255, 0, 0)}, {150, 110});
  }
}

TEST_P(PointMarks, TakeTheLegendsColour) {
  for (const COLORREF color : {RGB(0, 0, 0), RGB(255, 255, 255), RGB(255, 0, 0), RGB(0, 128, 0),
                               RGB(0, 0, 255), RGB(18, 52, 86)}) {
    ExpectMark({GetParam(), 15, 0, 0, 1, color}, {150, 110});
  }
}

TEST_P(PointMarks, PartlyOutsideAreCut) {
  const POINT places[] = {{0, 110}, {-5, 110},         {kWidth - 1, 110},  {kWidth + 5, 110},
                          {150, 0}, {150, -5},         {150, kHeight - 1}, {150, kHeight + 5},
                          {0, 0},   {kWidth, kHeight}, {-3, kHeight + 3},  {kWidth + 3, -3}};
  for (const POINT& at : places) ExpectMark({GetParam(), 30, 0, 0, 1, RGB(0, 128, 0)}, at);
}

INSTANTIATE_TEST_SUITE_P(Kind, PointMarks, testing::Range(1, 12));

// Kinds that are none: nothing, whatever the size.
class NoPointMark : public PointMarks {};

TEST_P(NoPointMark, IsDrawn) {
  const Picture empty = Redrawn();
  ASSERT_EQ(0, Enter(1, GroundAt({150, 110}), AddLegend({GetParam(), 20, 0, 0, 1, 0})));
  EXPECT_TRUE(SamePicture(empty, Redrawn()));
}

TEST_P(NoPointMark, ButItsLabelIs) {
  const PointLegend symbol{GetParam(), 20, 16, 0, 1, RGB(255, 0, 0)};
  ASSERT_EQ(0, Enter(1, GroundAt({150, 110}), AddLegend(symbol), L"P1"));
  const RawCanvas canvas(Window());
  const Picture empty = canvas.Take();
  DrawRawPoint(canvas.Dc(), symbol, {150, 110}, L"P1");
  EXPECT_FALSE(empty == canvas.Take());
  EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()));
}

INSTANTIATE_TEST_SUITE_P(Kind, NoPointMark, testing::Values(0, 12, -1, 101, 1000000));

using Pixels = std::set<std::pair<int, int>>;

// The black pixels, relative to `middle`.
Pixels BlackPixels(const Picture& picture, POINT middle) {
  Pixels pixels;
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      if (picture.At(x, y) == 0) pixels.emplace(x - middle.x, y - middle.y);
    }
  }
  return pixels;
}

// The shapes in plain numbers, to which the raw calls themselves must come.
class PlainMarks : public PlotTest {
 protected:
  void SetUp() override { MakePlot(100, 80); }

  static Pixels Draw(int kind, int size) {
    const POINT at{40, 30};
    EXPECT_EQ(0, Enter(1, GroundAt(at), AddLegend({kind, size, 0, 0, 1, 0})));
    return BlackPixels(Redrawn(), at);
  }
};

TEST_F(PlainMarks, CrossesReachHalfTheSizeWithTheirEndPixels) {
  for (const int size : {2, 3, 10, 11}) {
    const int half = size / 2;
    Pixels upright;
    Pixels diagonal;
    for (int i = -half; i <= half; ++i) {
      upright.emplace(i, 0);
      upright.emplace(0, i);
      diagonal.emplace(i, i);
      diagonal.emplace(i, -i);
    }
    EXPECT_EQ(diagonal, Draw(3, size)) << size;
    EXPECT_EQ(upright, Draw(4, size)) << size;
  }
}

TEST_F(PlainMarks, SquaresAreClosedOutlinesOrFull) {
  for (const int size : {2, 3, 10, 11}) {
    const int half = size / 2;
    Pixels outline;
    Pixels full;
    for (int y = -half; y <= half; ++y) {
      for (int x = -half; x <= half; ++x) {
        full.emplace(x, y);
        if (x == -half || x == half || y == -half || y == half) outline.emplace(x, y);
      }
    }
    EXPECT_EQ(outline, Draw(6, size)) << size;
    EXPECT_EQ(full, Draw(10, size)) << size;
  }
}

TEST_F(PlainMarks, TrianglesStandFourFifthsAboveAndOneFifthBelow) {
  const struct {
    int kind;
    int apex;
    int base;
  } rows[] = {{5, -16, 4}, {9, -16, 4}, {7, 16, -4}, {11, 16, -4}};
  for (const auto& [kind, apex, base] : rows) {
    const Pixels pixels = Draw(kind, 20);
    EXPECT_TRUE(pixels.contains({0, apex})) << kind;
    EXPECT_FALSE(pixels.contains({0, apex + (apex < 0 ? -1 : 1)})) << kind;
    for (int x = -10; x <= 10; ++x) EXPECT_TRUE(pixels.contains({x, base})) << kind << ", " << x;
    EXPECT_FALSE(pixels.contains({-11, base})) << kind;
    EXPECT_FALSE(pixels.contains({11, base})) << kind;
    EXPECT_FALSE(pixels.contains({0, base + (apex < 0 ? 1 : -1)})) << kind;
    EXPECT_EQ(kind > 8, pixels.contains({0, 0})) << kind;  // filled or hollow
  }
}

TEST_F(PlainMarks, TheFirstBuiltInMarkIsADotWithItsNumberBeside) {
  ASSERT_EQ(0, Enter(1, GroundAt({40, 30}), 1, L"not shown", 12));
  const PointLegend symbol{1, 2, 10, 1, 1, 0};
  RawCanvas canvas(Window());
  DrawRawPoint(canvas.Dc(), symbol, {40, 30}, L"12");
  EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()));
}

}  // namespace
}  // namespace tavix::test
