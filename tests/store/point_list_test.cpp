#include "store/point_list.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace tavix {
namespace {

Point PointAt(std::int32_t key, double x, double y) { return {key, key, u"name", {x, y}, 1}; }

std::vector<std::int32_t> KeysOf(const CPntList& points) {
  std::vector<std::int32_t> keys;
  points.ForEach([&](const Point& point) { keys.push_back(point.key); });
  return keys;
}

using Keys = std::vector<std::int32_t>;

TEST(PointList, KeepsEveryFieldOfAPoint) {
  CPntList points;
  EXPECT_EQ(0, points.Add({-7, 42, u"基準点", {1.5, -2.5}, -1}));
  ASSERT_EQ(0, points.Find(-7));
  Point point;
  ASSERT_EQ(0, points.GetCur(&point));
  EXPECT_EQ(-7, point.key);
  EXPECT_EQ(42, point.number);
  EXPECT_EQ(u"基準点", point.name);
  EXPECT_EQ(1.5, point.at.north);
  EXPECT_EQ(-2.5, point.at.east);
  EXPECT_EQ(-1, point.legend);
  EXPECT_EQ(1U, points.Count());
}

TEST(PointList, WithoutACurrentPointNothingIsReadOrChanged) {
  CPntList points;
  points.Add(PointAt(1, 10, 20));
  points.SetChanged(false);
  Point point{99, 99, u"kept", {9, 9}, 9};
  GroundPoint at{9, 9};
  EXPECT_EQ(-2, points.GetCur(&point));
  EXPECT_EQ(-2, points.GetCurCrd(&at));
  EXPECT_EQ(-2, points.Next());
  EXPECT_EQ(-2, points.SetCurNoNam(5, u"other"));
  EXPECT_EQ(-2, points.SetCurCrd({5, 5}));
  EXPECT_EQ(-2, points.SetCurHan(5));
  EXPECT_EQ(-2, points.SetCur(5, u"other", {5, 5}, 5));
  EXPECT_EQ(99, point.key);
  EXPECT_EQ(u"kept", point.name);
  EXPECT_EQ(9, at.north);
  EXPECT_FALSE(points.Changed());
  ASSERT_EQ(0, points.First());
  ASSERT_EQ(0, points.GetCur(&point));
  EXPECT_EQ(1, point.number);
  EXPECT_EQ(10, point.at.north);
}

TEST(PointList, AddingAndWalkingKeepTheOrderOfEntry) {
  CPntList points;
  for (const std::int32_t key : {5, 3, 9, 3}) points.Add(PointAt(key, 0, 0));
  EXPECT_EQ((Keys{5, 3, 9, 3}), KeysOf(points));  // a key may repeat
  Keys walked;
  GroundPoint at;
  for (int code = points.First(); code == 0; code = points.Next()) {
    Point point;
    ASSERT_EQ(0, points.GetCur(&point));
    ASSERT_EQ(0, points.GetCurCrd(&at));
    walked.push_back(point.key);
  }
  EXPECT_EQ(walked, KeysOf(points));
  EXPECT_EQ(-2, points.GetCurCrd(&at));  // ran off the end
}

TEST(PointList, ReplacingKeepsTheKeyAndThePlaceInTheList) {
  CPntList points;
  for (const std::int32_t key : {1, 2, 3}) points.Add(PointAt(key, key, key));
  ASSERT_EQ(0, points.Find(2));
  ASSERT_EQ(0, points.SetCur(77, u"a longer name than before", {8, 9}, 201));
  EXPECT_EQ((Keys{1, 2, 3}), KeysOf(points));
  Point point;
  ASSERT_EQ(0, points.GetCur(&point));
  EXPECT_EQ(2, point.key);
  EXPECT_EQ(77, point.number);
  EXPECT_EQ(u"a longer name than before", point.name);
  EXPECT_EQ(8, point.at.north);
  EXPECT_EQ(9, point.at.east);
  EXPECT_EQ(201, point.legend);
}

TEST(PointList, TheChangedFlagFollowsItsRules) {
  CPntList points;
  EXPECT_FALSE(points.Changed());
  points.Add(PointAt(1, 0, 0));
  EXPECT_TRUE(points.Changed());
  ASSERT_EQ(0, points.Find(1));
  const struct {
    const char* what;
    int (*change)(CPntList&);
    bool changed;
  } rows[] = {
      {"number and name", [](CPntList& list) { return list.SetCurNoNam(8, u"x"); }, false},
      {"coordinates",
       [](CPntList& list) {
         return list.SetCurCrd({0, 0});
       },
       true},
      {"legend", [](CPntList& list) { return list.SetCurHan(1); }, true},
      {"all",
       [](CPntList& list) {
         return list.SetCur(1, u"y", {0, 0}, 1);
       },
       true},
      {"nothing found to remove", [](CPntList& list) { return list.Remove(9) + 1; }, true},
      {"a point removed", [](CPntList& list) { return list.Remove(1); }, true},
  };
  for (const auto& row : rows) {
    points.SetChanged(false);
    EXPECT_EQ(0, row.change(points)) << row.what;
    EXPECT_EQ(row.changed, points.Changed()) << row.what;
  }
  points.Clear();
  EXPECT_FALSE(points.Changed());
}

TEST(PointList, RemovingLeavesNoCurrentPointAndAFailedRemovalKeepsIt) {
  CPntList points;
  for (const std::int32_t key : {1, 2, 3}) points.Add(PointAt(key, 0, 0));
  ASSERT_EQ(0, points.Find(3));
  EXPECT_EQ(-1, points.Remove(9));
  Point point;
  ASSERT_EQ(0, points.GetCur(&point));
  EXPECT_EQ(3, point.key);
  EXPECT_EQ(0, points.Remove(1));
  EXPECT_EQ(-2, points.GetCur(&point));
  EXPECT_EQ((Keys{2, 3}), KeysOf(points));
  EXPECT_EQ(-1, points.Remove(1));
}

TEST(PointList, ClearingForgetsEverything) {
  CPntList points;
  for (const std::int32_t key : {1, 2, 3}) points.Add(PointAt(key, 0, 0));
  ASSERT_EQ(0, points.Find(2));
  points.Clear();
  EXPECT_EQ(0U, points.Count());
  EXPECT_EQ(-2, points.Next());
  EXPECT_EQ(-1, points.First());
  EXPECT_EQ(-1, points.Find(2));
  std::int32_t key = 99;
  EXPECT_EQ(-3, points.FindNearest(1e9, {0, 0}, &key));
  EXPECT_EQ(0, key);
  points.Add(PointAt(2, 0, 0));
  EXPECT_EQ((Keys{2}), KeysOf(points));
}

TEST(PointList, LocatingLeavesTheCurrentPointAlone) {
  CPntList points;
  points.Add(PointAt(1, 10, 20));
  points.Add(PointAt(2, 30, 40));
  ASSERT_EQ(0, points.Find(1));
  GroundPoint at{9, 9};
  EXPECT_FALSE(points.Locate(7, &at));
  EXPECT_EQ(9, at.north);
  EXPECT_TRUE(points.Locate(2, &at));
  EXPECT_EQ(30, at.north);
  EXPECT_EQ(40, at.east);
  ASSERT_EQ(0, points.GetCurCrd(&at));
  EXPECT_EQ(10, at.north);
}

TEST(PointList, ExtentCoversEveryPoint) {
  CPntList points;
  GroundExtent extent{{9, 9}, {9, 9}};
  EXPECT_EQ(-3, points.GetExtent(&extent));
  EXPECT_EQ(0.0, extent.max.north);
  EXPECT_EQ(0.0, extent.min.east);
  points.Add(PointAt(1, 5, -5));
  EXPECT_EQ(0, points.GetExtent(&extent));
  EXPECT_EQ(5.0, extent.max.north);
  EXPECT_EQ(5.0, extent.min.north);
  points.Add(PointAt(2, 7, -9));
  points.Add(PointAt(3, -1, 3));
  EXPECT_EQ(0, points.GetExtent(&extent));
  EXPECT_EQ(7.0, extent.max.north);
  EXPECT_EQ(3.0, extent.max.east);
  EXPECT_EQ(-1.0, extent.min.north);
  EXPECT_EQ(-9.0, extent.min.east);
  ASSERT_EQ(0, points.Remove(2));
  EXPECT_EQ(0, points.GetExtent(&extent));
  EXPECT_EQ(5.0, extent.max.north);
  EXPECT_EQ(-5.0, extent.min.east);
}

TEST(PointList, NamesSurviveManyChanges) {
  CPntList points;
  std::mt19937 random(51);
  constexpr int kPoints = 200;
  std::vector<std::u16string> names(kPoints);
  for (int key = 0; key < kPoints; ++key) points.Add({key, 0, u"", {0, 0}, 1});
  for (int i = 0; i < 20000; ++i) {
    const int key = std::uniform_int_distribution<int>(0, kPoints - 1)(random);
    const auto length = std::uniform_int_distribution<std::size_t>(0, 60)(random);
    const auto letter = static_cast<char16_t>(u'a' + i % 26);
    std::u16string& name = names[static_cast<std::size_t>(key)];
    name.assign(length, letter);
    ASSERT_EQ(0, points.Find(key));
    ASSERT_EQ(0, points.SetCurNoNam(i, name));
    if (i % 500 == 0) {  // remove and enter again
      ASSERT_EQ(0, points.Remove(key));
      points.Add({key, 0, name, {0, 0}, 1});
    }
  }
  points.ForEach([&](const Point& point) {
    EXPECT_EQ(point.name, names[static_cast<std::size_t>(point.key)]) << point.key;
  });
}

TEST(SamePosition, IsStrictlyCloserThanTheTolerance) {
  const struct {
    GroundPoint other;
    bool same;
  } rows[] = {{{0, 0}, true},
              {{0.0000099, -0.0000099}, true},
              {{1e-5, 0}, false},
              {{0, -1e-5}, false},
              {{0.00002, 0.00002}, false},
              {{0, 5}, false},
              {{std::nan(""), 0}, false}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.same, IsSamePosition({0, 0}, row.other)) << row.other.north << row.other.east;
    EXPECT_EQ(row.same, IsSamePosition(row.other, {0, 0})) << row.other.north << row.other.east;
  }
}

// ---- The nearest point

TEST(FindNearest, LooksInASquareBordersIncluded) {
  const struct {
    const char* what;
    GroundPoint point;
    bool found;
  } rows[] = {{"on it", {0, 0}, true},
              {"on the right border", {0, 10}, true},
              {"in the corner", {-10, 10}, true},
              {"beyond to the north", {10.001, 0}, false},
              {"beyond to the west", {0, -10.001}, false},
              {"far in both", {20, 20}, false}};
  for (const auto& row : rows) {
    CPntList points;
    points.Add(PointAt(7, row.point.north, row.point.east));
    std::int32_t key = 99;
    EXPECT_EQ(points.FindNearest(10, {0, 0}, &key), row.found ? 0 : -1) << row.what;
    EXPECT_EQ(key, row.found ? 7 : 0) << row.what;
  }
}

TEST(FindNearest, OfEqualsTheEarlierOneWins) {
  CPntList points;
  points.Add(PointAt(1, 4, 0));
  points.Add(PointAt(2, 0, 3));
  points.Add(PointAt(3, -3, 0));
  points.Add(PointAt(4, 0, -3));
  std::int32_t key = 0;
  EXPECT_EQ(0, points.FindNearest(10, {0, 0}, &key));
  EXPECT_EQ(2, key);
}

TEST(FindNearest, StopsAtTenCandidates) {
  CPntList points;
  points.Add(PointAt(100, 500, 0));  // no candidate: does not count
  for (int i = 0; i < 10; ++i) points.Add(PointAt(i + 1, 9.0 - i * 0.5, 0));
  points.Add(PointAt(11, 0, 0));
  std::int32_t key = 0;
  EXPECT_EQ(0, points.FindNearest(10, {0, 0}, &key));
  EXPECT_EQ(10, key);  // the tenth counts, the eleventh does not although it is nearest
  ASSERT_EQ(0, points.Remove(3));
  EXPECT_EQ(0, points.FindNearest(10, {0, 0}, &key));
  EXPECT_EQ(11, key);
}

TEST(FindNearest, LeavesTheCurrentPointAlone) {
  CPntList points;
  points.Add(PointAt(1, 0, 0));
  points.Add(PointAt(2, 1, 1));
  ASSERT_EQ(0, points.Find(2));
  std::int32_t key = 0;
  ASSERT_EQ(0, points.FindNearest(10, {0, 0}, &key));
  EXPECT_EQ(1, key);
  Point point;
  ASSERT_EQ(0, points.GetCur(&point));
  EXPECT_EQ(2, point.key);
}

TEST(FindNearest, ANegativeToleranceFindsNothing) {
  CPntList points;
  points.Add(PointAt(1, 0, 0));
  std::int32_t key = 99;
  EXPECT_EQ(-1, points.FindNearest(-1, {0, 0}, &key));
  EXPECT_EQ(0, key);
  EXPECT_EQ(0, points.FindNearest(0, {0, 0}, &key));
}

}  // namespace
}  // namespace tavix
