// The nearest point and the points of an area, compared with a plain scan of the list.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "tests/store/points_twice.h"

namespace tavix {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

// `whole`: coordinates are whole numbers, so that there are ties and points on the border;
// `changes`: in a thousand steps; `strange`: some coordinates are not finite.
void CompareInRandomUse(unsigned seed, int points, int side, bool whole, unsigned changes,
                        bool strange) {
  SCOPED_TRACE(testing::Message() << "seed " << seed);
  std::mt19937 random(seed);
  const auto coordinate = [&] {
    if (strange && random() % 50 == 0) {
      const double odd[] = {kInfinity, -kInfinity, kNoNumber, 1e300, -1e300, -0.0};
      return odd[random() % 6];
    }
    const double value = std::uniform_real_distribution<double>(-side, side)(random);
    return whole ? std::floor(value) : value;
  };
  const auto some_position = [&] { return GroundPoint{coordinate(), coordinate()}; };
  PointsTwice lists;
  std::int32_t key = 0;
  for (int i = 0; i < points; ++i) lists.Add(++key, some_position());
  for (int step = 0; step < 3000; ++step) {
    if (random() % 1000 < changes) {
      const auto choice = static_cast<unsigned>(random() % 100);
      const std::size_t which = lists.Count() == 0 ? 0 : random() % lists.Count();
      if (choice < 45 || lists.Count() == 0) {
        lists.Add(++key, some_position());
      } else if (choice < 70) {
        lists.Move(which, some_position());
      } else if (choice < 99) {
        lists.Remove(which);
      } else if (random() % 8 == 0) {
        lists.Clear();
        for (int i = 0; i < points; ++i) lists.Add(++key, some_position());
      } else {  // many at once, so that the list closes its holes
        while (lists.Count() > static_cast<std::size_t>(points) / 3)
          lists.Remove(random() % lists.Count());
      }
    }
    const bool at_a_point = lists.Count() > 0 && random() % 3 == 0;
    const GroundPoint at =
        at_a_point ? lists.PositionOf(random() % lists.Count()) : some_position();
    double tolerance = std::ldexp(1.0, static_cast<int>(random() % 24) - 10);
    if (whole) tolerance = static_cast<double>(random() % 12);
    if (strange && random() % 30 == 0) tolerance = random() % 2 == 0 ? kInfinity : kNoNumber;
    ASSERT_EQ(lists.FoundByScan(tolerance, at), lists.Found(tolerance, at))
        << "step " << step << ": " << tolerance << " round " << at.north << ", " << at.east;
    if (step % 8 != 0) continue;
    ASSERT_TRUE(lists.HasSameInArea({at, tolerance, tolerance * 0.5})) << "step " << step;
  }
}

TEST(NearestPoint, IsTheOneAScanFinds) {
  unsigned seed = 70;
  for (const int points : {5, 140, 1500}) {
    for (const int side : {12, 60, 3000}) {
      CompareInRandomUse(++seed, points, side, true, 0, false);
      CompareInRandomUse(++seed, points, side, true, 10, false);
      CompareInRandomUse(++seed, points, side, false, 200, false);
      CompareInRandomUse(++seed, points, side, side == 60, 50, true);
    }
  }
}

// More than one stretch of the index, points that move and go, and points entered late.
TEST(PointsOfAnArea, AreThoseAScanFindsAmongVeryMany) {
  constexpr int kPoints = 150000;
  constexpr double kSide = 1e4;
  std::mt19937 random(77);
  const auto some_position = [&] {
    std::uniform_real_distribution<double> coordinate(0.0, kSide);
    return GroundPoint{coordinate(random), coordinate(random)};
  };
  PointsTwice lists;
  std::int32_t key = 0;
  // In rows across the ground, as surveys are entered, and then anywhere.
  for (; key < kPoints / 2; ++key) {
    lists.Add(key + 1, {kSide * 2 * key / kPoints, kSide * (key % 300) / 300});
  }
  for (; key < kPoints; ++key) lists.Add(key + 1, some_position());
  for (int step = 0; step < 30; ++step) {
    const double reach = std::ldexp(1.0, static_cast<int>(random() % 14));
    const GroundPoint at = some_position();
    ASSERT_TRUE(lists.HasSameInArea({at, reach, reach * 2})) << "step " << step;
    ASSERT_EQ(lists.FoundByScan(reach * 0.1, at), lists.Found(reach * 0.1, at)) << "step " << step;
    for (int i = 0; i < 20; ++i) {
      lists.Move(random() % lists.Count(), some_position());
      lists.Remove(random() % lists.Count());
      lists.Add(++key, some_position());
    }
  }
}

// Differences are rounded: a point may lie on the border of the square by a rounding only.
TEST(NearestPoint, IsOnTheBorderAsTheDifferenceRounds) {
  std::mt19937 random(90);
  for (const double base : {0.1, 1e5, 123456789.123}) {
    PointsTwice lists;
    for (int i = 0; i < 600; ++i) {
      lists.Add(i + 1, {base + 0.1 * (i % 25), base + 0.1 * static_cast<double>(i / 25)});
    }
    for (int i = 0; i < 3000; ++i) {
      const GroundPoint at{base + 0.1 * static_cast<double>(random() % 30),
                           base + 0.1 * static_cast<double>(random() % 30)};
      const double tolerance = 0.1 * static_cast<double>(random() % 4);
      ASSERT_EQ(lists.FoundByScan(tolerance, at), lists.Found(tolerance, at))
          << tolerance << " round " << at.north << ", " << at.east;
    }
  }
}

}  // namespace
}  // namespace tavix
