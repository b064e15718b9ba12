// What the plan's passes make of points and lines on the ground, drawn both ways.
#include <gtest/gtest.h>

#include <string>

#include "draw/line_painter.h"
#include "draw/point_painter.h"
#include "tests/draw/dib/canvas_pair.h"

namespace tavix::test {
namespace {

constexpr int kWidth = 320;
constexpr int kHeight = 240;

class DibPainters : public testing::TestWithParam<int> {
 protected:
  DibPainters() {
    view_.SetScreenSize(kWidth, kHeight);
    view_.SetRatio(1.5);
    EXPECT_FALSE(view_.ZoomIn(1.7));
    EXPECT_EQ(0, view_.SetAngle(GetParam()));
  }

  void TearDown() override { EXPECT_TRUE(pair_.ShowSomething()); }

  std::int16_t Add(bool is_point, const LegendValues& values) {
    std::int16_t number = 0;
    legend_.Add(is_point, values, &number);
    return number;
  }

  GroundPoint Ground() {
    constexpr int kAround = 150;  // metres, more than the view shows
    const double x = dice_.Between(-kAround * 100, kAround * 100) / 100.0;
    return {x, dice_.Between(-kAround * 100, kAround * 100) / 100.0};
  }

  LegendTable legend_;
  CViewState view_;
  RasterCache cache_;
  CanvasPair pair_{kWidth, kHeight, cache_};
  Dice dice_{static_cast<unsigned>(GetParam())};
};

TEST_P(DibPainters, DrawLinesOfEveryKind) {
  LinePainter painter(pair_, view_, legend_);
  for (int kind = 101; kind <= 105; ++kind) {
    for (const int width : {0, 1, 2}) {
      const std::int16_t legend =
          Add(false, {kind, dice_.Between(0, 9), dice_.Between(0, 5), 3, width, dice_.Color()});
      for (int i = 0; i < 15; ++i) {
        const GroundPoint start = Ground();
        painter.DrawSegment(legend, start, Ground());
        painter.DrawSegment(legend, start, start);
      }
      painter.DrawCircle(legend, Ground(), dice_.Between(0, 40));
    }
  }
  painter.DrawCircle(101, {1e6, 1e6}, 1.41421e6);
  EXPECT_TRUE(pair_.AreSame());
}

TEST_P(DibPainters, DrawPointsOfEveryKind) {
  PointPainter painter(pair_, view_, legend_);
  for (int round = 0; round < 8; ++round) {
    for (int kind = 1; kind <= 11; ++kind) {
      const std::int16_t legend = Add(
          true, {kind, dice_.Between(0, 20), dice_.Between(0, 14), round % 2, 1, dice_.Color()});
      for (int i = 0; i < 12; ++i) {
        const int number = dice_.Between(-10, 99999);
        const std::u16string name = i % 4 == 0 ? u"点" : u"Point";
        painter.Draw({number, number, name, Ground(), legend});
      }
    }
  }
  EXPECT_TRUE(pair_.AreSame());
}

// The first of each pass has no symbol before it; all others have that of the one before.
TEST_P(DibPainters, DrawWhatHasNoLegendEntry) {
  constexpr std::int16_t kUnknown = 999;
  constexpr std::int16_t kNone = -1;
  LinePainter lines(pair_, view_, legend_);
  lines.DrawCircle(kNone, {5, 5}, 30);
  lines.DrawSegment(kUnknown, {-50, -50}, {50, 50});
  lines.DrawCircle(kUnknown, {8, 5}, 30);
  const std::int16_t zeros = Add(false, {});
  for (const std::int16_t legend : {std::int16_t{105}, zeros, std::int16_t{103}}) {
    lines.DrawSegment(legend, Ground(), Ground());
    lines.DrawSegment(kUnknown, Ground(), Ground());
    lines.DrawCircle(kNone, Ground(), 20);
    lines.DrawCircle(legend, Ground(), 25);
  }
  PointPainter points(pair_, view_, legend_);
  points.Draw({1, 1, u"A", Ground(), kUnknown});
  for (std::int16_t legend = 1; legend <= LegendTable::kPointLegends; ++legend) {
    points.Draw({1, 1, u"A", {legend * 8.0 - 50, -20.0}, legend});
    points.Draw({2, 2, u"B", {legend * 8.0 - 50, 20.0}, kUnknown});
    points.Draw({3, 3, u"C", {legend * 8.0 - 50, 60.0}, kNone});
  }
  EXPECT_TRUE(pair_.AreSame());
}

INSTANTIATE_TEST_SUITE_P(Degrees, DibPainters, testing::Values(0, 15, 90, 133, 180, 270, 359));

}  // namespace
}  // namespace tavix::test
