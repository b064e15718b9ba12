// Marks and labels that the picture's edges cut.
#include <gtest/gtest.h>

#include "tests/draw/dib/canvas_pair.h"

namespace tavix::test {
namespace {

constexpr int kWidth = 70;
constexpr int kHeight = 50;

using enum LabelContent;

class DibEdges : public testing::TestWithParam<int> {
 protected:
  // Draws one point after another, a pixel further each time, across the top left corner or the
  // bottom right one.
  void DrawAcross(ScreenPoint corner, const PointSymbol& symbol, NameView text) {
    CanvasPair pair(kWidth, kHeight, cache_);
    pair.UsePointSymbol(symbol);
    for (int step = -45; step <= 45; ++step) {
      for (const ScreenPoint& at : {ScreenPoint{corner.x + step, corner.y},
                                    {corner.x, corner.y + step},
                                    {corner.x + step, corner.y - step},
                                    {corner.x - step, corner.y - step}}) {
        if (symbol.size > 0) pair.Mark(at);
        if (symbol.label_height > 0) pair.Label(at, text);
      }
    }
    EXPECT_TRUE(pair.AreSame()) << symbol.mark << ", " << symbol.size;
    // A dot, and the circles and polygons of a single pixel, have no outline.
    const bool has_shape = symbol.label_height > 0 || (symbol.mark != 1 && symbol.size > 1);
    if (has_shape) {
      EXPECT_TRUE(pair.ShowSomething()) << symbol.mark << ", " << symbol.size;
    }
  }

  RasterCache cache_;
};

TEST_P(DibEdges, CutMarks) {
  for (const int size : {1, 2, 9, 10, 25}) {
    for (const int width : {1, 3}) {
      for (const ScreenPoint& corner : {ScreenPoint{0, 0}, {kWidth, kHeight}}) {
        DrawAcross(corner, {GetParam(), size, 0, kName, {width, 0x00C08040}}, u"");
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Kind, DibEdges, testing::Range(1, 12));

class DibLabelEdges : public DibEdges {};

TEST_P(DibLabelEdges, CutLabels) {
  for (const ScreenPoint& corner : {ScreenPoint{0, 0}, {kWidth, kHeight}}) {
    DrawAcross(corner, {2, 10, GetParam(), kName, {1, 0x00FF0000}}, u"P12345");
    DrawAcross(corner, {0, 0, GetParam(), kName, {1, 0}}, u"g");
  }
}

INSTANTIATE_TEST_SUITE_P(Height, DibLabelEdges, testing::Values(6, 10, 12, 16, 24));

}  // namespace
}  // namespace tavix::test
