// What points on the ground ask of a canvas, natively too.
#include "draw/point_painter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

#include "tests/draw/painter_test.h"

namespace tavix::test {
namespace {

class PointPainterOn : public PainterTest {};

TEST_F(PointPainterOn, AnUnknownNumberKeepsTheSymbolOfThePointBefore) {
  const std::int16_t label = Add({4, 0, 12, 1, 1, 0});
  PointPainter painter(canvas_, view_, legend_);
  for (const std::int16_t legend : {kNone, kUnknown}) {
    painter.Draw({1, 7, u"A", {0, 0}, legend});
    EXPECT_EQ(Notes{}, canvas_.Take());
  }
  painter.Draw({2, 7, u"A", {0, 10}, label});
  EXPECT_EQ((Notes{"symbol 4", "label 130,90"}), canvas_.Take());
  for (const std::int16_t legend : {kNone, kUnknown}) {
    painter.Draw({3, 7, u"A", {0, 20}, legend});
    EXPECT_EQ(Notes{"label 140,90"}, canvas_.Take());
  }
  painter.Draw({4, 0, u"A", {0, 30}, kUnknown});  // the label is the number, and there is none
  EXPECT_EQ(Notes{}, canvas_.Take());
}

// How far a mark reaches is part of its symbol.
TEST_F(PointPainterOn, AnUnknownNumberKeepsTheReachOfTheMark) {
  const std::int16_t large = Add({4, 40, 0, 0, 1, 0});
  PointPainter painter(canvas_, view_, legend_);
  painter.Draw({1, 0, u"", {0, -160}, large});
  painter.Draw({2, 0, u"", {0, -160}, kUnknown});
  painter.Draw({3, 0, u"", {0, -161}, kUnknown});
  EXPECT_EQ((Notes{"symbol 4", "mark -40,90", "mark -40,90"}), canvas_.Take());
}

// The numbers of added legends go round the 16 bits, so that one of them may be -1.
TEST_F(PointPainterOn, TheNumberOfNoLegendIsLookedUpAfterAnotherOnly) {
  std::int16_t number = 0;
  while (number != kNone) number = Add({6, 10, 0, 0, 1, 0});
  PointPainter painter(canvas_, view_, legend_);
  painter.Draw({1, 0, u"", {0, 0}, kNone});
  EXPECT_EQ(Notes{}, canvas_.Take());
  painter.Draw({2, 0, u"", {0, 0}, 4});
  painter.Draw({3, 0, u"", {0, 0}, kNone});
  EXPECT_EQ((Notes{"symbol 4", "mark 120,90", "symbol 6", "mark 120,90"}), canvas_.Take());
}

// A symbol that is in use already may be taken into use again.
std::vector<std::string> WithoutRepeatedSymbols(const std::vector<std::string>& notes) {
  std::vector<std::string> kept;
  std::string symbol;
  for (const std::string& note : notes) {
    const bool is_symbol = note.starts_with("symbol");
    if (is_symbol && note == symbol) continue;
    if (is_symbol) symbol = note;
    kept.push_back(note);
  }
  return kept;
}

// What does not show is left out by areas of the ground, which must not change anything.
TEST_F(PointPainterOn, AllPointsOfAListAreDrawnAsOneByOne) {
  constexpr double kFar = 1e5;
  std::mt19937 random(5);
  const auto between = [&](double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  };
  std::vector<std::int16_t> numbers{kNone, kUnknown};
  for (int kind = 1; kind <= 11; ++kind) {
    numbers.push_back(Add({kind, static_cast<int>(between(-20, 120)),
                           static_cast<int>(between(-2, 20)), kind % 2, 1, 0}));
  }
  std::size_t drawn = 0;
  for (int round = 0; round < 24; ++round) {
    CPntList points;
    // Of some lists few points have a legend that there is.
    const std::size_t choice = round % 3 == 0 ? 3 : numbers.size();
    const GroundPoint base{between(-kFar, kFar), between(-kFar, kFar)};
    for (int key = 1; key <= 400; ++key) {
      const GroundPoint at{base.north + between(-400, 400), base.east + between(-400, 400)};
      points.Add({key, key, u"A", at, numbers[random() % choice]});
    }
    for (int step = 0; step < 12; ++step) {
      ASSERT_EQ(0, view_.SetAngle(
                       static_cast<int>(random() % 4 == 0 ? 90 * (random() % 4) : random() % 360)));
      view_.SetRatio(random() % 3 == 0 ? between(-3, 3) : 1.0);
      view_.SetCentre({base.north + between(-300, 300), base.east + between(-300, 300)});
      const double metres = std::exp(between(-2, 9));
      view_.ZoomOut(view_.Scale() / (100.0 / metres));
      DrawPoints(canvas_, view_, legend_, points);
      const Notes shown = WithoutRepeatedSymbols(canvas_.Take());
      PointPainter painter(canvas_, view_, legend_);
      points.ForEach([&](const Point& point) { painter.Draw(point); });
      ASSERT_EQ(WithoutRepeatedSymbols(canvas_.Take()), shown) << round << ' ' << step;
      drawn += shown.size();
      for (int i = 0; i < 3; ++i) {
        const std::int32_t key = 1 + static_cast<int>(random() % 400);
        if (points.Find(key) != 0) continue;
        if (random() % 2 == 0) {
          points.SetCurCrd({base.north + between(-400, 400), base.east + between(-400, 400)});
          points.SetCurHan(numbers[random() % choice]);
        } else {
          points.Remove(key);
        }
      }
    }
  }
  EXPECT_LT(2000U, drawn);
}

// The sanitizers check the arithmetic on the way.
TEST_F(PointPainterOn, NumbersOutOfAllProportionStayInRange) {
  constexpr int kMost = std::numeric_limits<int>::max();
  constexpr int kLeast = std::numeric_limits<int>::min();
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const double places[] = {0, 150, -150, 33000, 3e9, 1e300, -kInfinity};
  PointPainter painter(canvas_, view_, legend_);
  for (const int size : {1, kMost, kLeast}) {
    const std::int16_t legend = Add({3, size, size, 1, size, 0});
    for (const double x : places) {
      for (const double y : places) {
        painter.Draw({1, kMost, u"A", {x, y}, legend});
        // Out of view, but within the hundred pixels of the largest mark that is drawn.
        const bool near = std::fabs(x) < 200 && std::fabs(y) < 200;
        const bool reaches = size == kMost ? near : size == 1 && x == 0 && y == 0;
        EXPECT_EQ(reaches ? 1 : 0,
                  std::ranges::count_if(canvas_.Take(),
                                        [](const auto& note) { return note.starts_with("mark"); }))
            << size << ' ' << x << ' ' << y;
      }
    }
  }
}

}  // namespace
}  // namespace tavix::test
