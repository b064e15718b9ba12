// The nearest point and the points of an area, compared with a plain scan of the list.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <span>
#include <vector>

#include "store/point_list.h"

namespace tavix {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

// The rule, literally: gather up to ten candidates in list order, then choose.
std::int32_t PlainNearest(const std::vector<Point>& points, double tolerance, GroundPoint at) {
  std::vector<std::pair<std::int32_t, double>> candidates;
  for (const Point& point : points) {
    const double north = at.north - point.at.north;
    const double east = at.east - point.at.east;
    if (!(std::fabs(north) <= tolerance && std::fabs(east) <= tolerance)) continue;
    candidates.emplace_back(point.key, north * north + east * east);
    if (candidates.size() == 10) break;
  }
  if (candidates.empty()) return 0;
  auto nearest = candidates.front();
  for (const auto& candidate : candidates) {
    if (candidate.second < nearest.second) nearest = candidate;
  }
  return nearest.first;
}

// A list under test and a plain vector of the same points. No key is 0.
class PointsTwice {
 public:
  void Add(std::int32_t key, GroundPoint at) {
    points_.Add({key, 1, u"P", at, 1});
    plain_.push_back({key, 1, u"", at, 1});
  }
  void Move(std::size_t which, GroundPoint at) {
    ASSERT_EQ(0, points_.Find(plain_[which].key));
    ASSERT_EQ(0, points_.SetCurCrd(at));
    plain_[which].at = at;
  }
  void Remove(std::size_t which) {
    ASSERT_EQ(0, points_.Remove(plain_[which].key));
    plain_.erase(plain_.begin() + static_cast<std::ptrdiff_t>(which));
  }
  void Clear() {
    points_.Clear();
    plain_.clear();
  }
  [[nodiscard]] std::size_t Count() const { return plain_.size(); }
  [[nodiscard]] GroundPoint PositionOf(std::size_t which) const { return plain_[which].at; }

  void ExpectSameNearest(double tolerance, GroundPoint at) const {
    const std::int32_t expected = PlainNearest(plain_, tolerance, at);
    std::int32_t key = 99;
    const int code = points_.FindNearest(tolerance, at, &key);
    ASSERT_EQ(plain_.empty() ? -3 : (expected == 0 ? -1 : 0), code);
    ASSERT_EQ(expected, key) << tolerance << " round " << at.north << ", " << at.east;
  }

  // The points within an area come in list order, none is left out, and what lies between two of
  // them is handed over as passed over.
  void ExpectSameInArea(const GroundArea& area) const {
    std::vector<std::int32_t> keys;      // as they come, those passed over included
    std::vector<std::int32_t> expected;  // up to the last one that came
    bool within = true;                  // those within the area are not among those passed over
    std::int32_t last = 0;
    points_.ForEachIn(area, [&](const Point& point, std::span<const PntRec> passed_over) {
      for (const PntRec& record : passed_over) {
        if (record.removed) continue;
        within = within && !IsWithin(area, record.at);
        keys.push_back(record.key);
      }
      keys.push_back(last = point.key);
    });
    for (const Point& point : plain_) {
      if (last == 0) break;
      expected.push_back(point.key);
      if (point.key == last) last = 0;
    }
    ASSERT_EQ(expected, keys);
    for (std::size_t i = expected.size(); i < plain_.size(); ++i) {
      within = within && !IsWithin(area, plain_[i].at);
    }
    ASSERT_TRUE(within);
  }

 private:
  static bool IsWithin(const GroundArea& area, GroundPoint at) {
    return std::fabs(at.north - area.centre.north) <= area.north &&
           std::fabs(at.east - area.centre.east) <= area.east;
  }

  CPntList points_;
  std::vector<Point> plain_;
};

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
    ASSERT_NO_FATAL_FAILURE(lists.ExpectSameNearest(tolerance, at)) << "step " << step;
    if (step % 8 != 0) continue;
    ASSERT_NO_FATAL_FAILURE(lists.ExpectSameInArea({at, tolerance, tolerance * 0.5}))
        << "step " << step;
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
    ASSERT_NO_FATAL_FAILURE(lists.ExpectSameInArea({at, reach, reach * 2})) << "step " << step;
    ASSERT_NO_FATAL_FAILURE(lists.ExpectSameNearest(reach * 0.1, at)) << "step " << step;
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
      ASSERT_NO_FATAL_FAILURE(lists.ExpectSameNearest(0.1 * static_cast<double>(random() % 4), at));
    }
  }
}

}  // namespace
}  // namespace tavix
