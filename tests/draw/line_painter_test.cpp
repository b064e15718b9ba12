// What lines and circles on the ground ask of a canvas, natively too: the arithmetic is under
// sanitizers here.
#include "draw/line_painter.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <vector>

#include "tests/draw/painter_test.h"

namespace tavix::test {
namespace {

class LinePainterOn : public PainterTest {};

TEST_F(LinePainterOn, AnUnknownNumberKeepsTheStyleOfTheEntityBefore) {
  const std::int16_t wide = Add({kSolidLine, 0, 0, 0, 5, 0});
  LinePainter painter(canvas_, view_, legend_);
  painter.DrawSegment(wide, {0, 0}, {0, 10});
  painter.DrawSegment(kUnknown, {0, 0}, {0, 20});
  painter.DrawSegment(kNone, {0, 0}, {0, 30});
  painter.DrawCircle(kUnknown, {0, 0}, 7);
  painter.DrawSegment(kNone, {0, 0}, {0, 40});
  EXPECT_EQ((Notes{"pen 5", "line 120,90 130,90", "line 120,90 140,90", "line 120,90 150,90",
                   "circle 120,90 7", "line 120,90 160,90"}),
            canvas_.Take());
}

TEST_F(LinePainterOn, WithoutAnEntryBeforeOnlyCirclesAreDrawnAndNoPenIsMade) {
  LinePainter painter(canvas_, view_, legend_);
  painter.DrawSegment(kNone, {0, 0}, {0, 10});
  painter.DrawCircle(kNone, {0, 0}, 7);
  painter.DrawSegment(kUnknown, {0, 0}, {0, 10});
  painter.DrawCircle(kUnknown, {10, 0}, 8);
  EXPECT_EQ((Notes{"circle 120,90 7", "circle 120,80 8"}), canvas_.Take());
}

// A segment is clipped first: only one in view takes its legend into use.
TEST_F(LinePainterOn, AnUnknownNumberHasNoStyleFromASegmentOutOfView) {
  const std::int16_t wide = Add({kSolidLine, 0, 0, 0, 5, 0});
  LinePainter painter(canvas_, view_, legend_);
  painter.DrawSegment(wide, {5000, 0}, {5000, 10});
  painter.DrawSegment(kUnknown, {0, 0}, {0, 10});
  EXPECT_EQ(Notes{}, canvas_.Take());
}

TEST_F(LinePainterOn, ACircleIsDrawnWhateverTheStyle) {
  const std::int16_t zeros = Add({});
  const std::int16_t other = Add({55, 1, 1, 1, 3, 0});
  LinePainter painter(canvas_, view_, legend_);
  painter.DrawCircle(zeros, {0, 0}, 7);
  painter.DrawSegment(zeros, {0, 0}, {0, 10});
  painter.DrawCircle(other, {0, 0}, 8);
  EXPECT_EQ((Notes{"pen 0", "circle 120,90 7", "pen 3", "circle 120,90 8"}), canvas_.Take());
}

TEST_F(LinePainterOn, APolylineIsDrawnAsItsSegments) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const double odd[] = {kInfinity, -kInfinity, std::numeric_limits<double>::quiet_NaN(), 1e300,
                        -3e9};
  std::mt19937 random(3);
  const auto between = [&](double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  };
  std::size_t drawn = 0;
  for (int round = 0; round < 3000; ++round) {
    const auto coordinate = [&, middle = between(-500, 500)] {
      return random() % 200 == 0 ? odd[random() % 5] : middle + between(-100, 100);
    };
    ASSERT_EQ(0, view_.SetAngle(static_cast<int>(random() % 360)));
    std::vector<GroundPoint> points(random() % 12);
    for (GroundPoint& point : points) point = {coordinate(), coordinate()};
    const auto legend = static_cast<std::int16_t>(round % 8 == 0 ? 102 : 101);
    {
      LinePainter painter(canvas_, view_, legend_);
      painter.DrawPolyline(legend, points);
    }
    const Notes polyline = canvas_.Take();
    LinePainter painter(canvas_, view_, legend_);
    for (std::size_t i = 1; i < points.size(); ++i) {
      painter.DrawSegment(legend, points[i - 1], points[i]);
    }
    ASSERT_EQ(canvas_.Take(), polyline) << round;
    drawn += polyline.size();
  }
  EXPECT_LT(5000U, drawn);
}

TEST_F(LinePainterOn, ASegmentOfOnePixelIsADot) {
  LinePainter painter(canvas_, view_, legend_);
  painter.DrawSegment(101, {0, 0}, {0, 0});
  EXPECT_EQ((Notes{"pen 1", "line 120,90 121,90"}), canvas_.Take());
}

// A second pixel, counted up from there, would be at the other end of the range.
TEST_F(LinePainterOn, ADotAtTheEndOfTheRangeOfPixelsStaysThere) {
  const std::int16_t zeros = Add({102, 0, 0, 0, 1, 0});
  LinePainter painter(canvas_, view_, legend_);
  painter.DrawSegment(zeros, {0, 3e9}, {0, -50});
  const std::string end = std::to_string(std::numeric_limits<int>::max());
  EXPECT_EQ((Notes{"pen 1", "line " + end + ",90 " + end + ",90"}), canvas_.Take());
}

// The sanitizers check the arithmetic on the way.
TEST_F(LinePainterOn, NumbersOutOfAllProportionStayInRange) {
  constexpr int kMost = std::numeric_limits<int>::max();
  constexpr int kLeast = std::numeric_limits<int>::min();
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
  const double places[] = {0, 50, -3e9, 3e9, 1e300, -kInfinity, kNoNumber};
  LinePainter painter(canvas_, view_, legend_);
  for (const int length : {0, 1, kMost, kLeast}) {
    for (int kind = kSolidLine; kind <= 105; ++kind) {
      const std::int16_t legend = Add({kind, length, length, length, 1, 0});
      for (const double x : places) {
        for (const double y : places) {
          for (const GroundPoint end : {GroundPoint{x, -y}, {y, x}, {0, y}, {x, 0}}) {
            painter.DrawSegment(legend, {x, y}, end);
            EXPECT_LT(canvas_.Take().size(), 500U) << kind << ' ' << length << ' ' << x << ' ' << y;
          }
          for (const double radius : places) painter.DrawCircle(legend, {x, y}, radius);
          EXPECT_LT(canvas_.Take().size(), 2000U) << x << ' ' << y;
        }
      }
    }
  }
}

}  // namespace
}  // namespace tavix::test
