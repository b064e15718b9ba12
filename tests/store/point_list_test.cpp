#include "store/point_list.h"

#include <gtest/gtest.h>

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
  CPntList points(3);
  EXPECT_EQ(points.Open(), 0);
  EXPECT_EQ(points.Instance(), 3);
  EXPECT_EQ(points.Add({-7, 42, u"基準点", {1.5, -2.5}, -1}), 0);
  ASSERT_EQ(points.Find(-7), 0);
  Point point;
  ASSERT_EQ(points.GetCur(&point), 0);
  EXPECT_EQ(point.key, -7);
  EXPECT_EQ(point.number, 42);
  EXPECT_EQ(point.name, u"基準点");
  EXPECT_EQ(point.at.x, 1.5);
  EXPECT_EQ(point.at.y, -2.5);
  EXPECT_EQ(point.legend, -1);
  EXPECT_EQ(points.Close(), 0);
  EXPECT_EQ(points.Count(), 1U);  // closing is no work
}

TEST(PointList, WithoutACurrentPointNothingIsReadOrChanged) {
  CPntList points(0);
  points.Add(PointAt(1, 10, 20));
  points.SetChanged(false);
  Point point{99, 99, u"kept", {9, 9}, 9};
  GroundPoint at{9, 9};
  EXPECT_EQ(points.GetCur(&point), -2);
  EXPECT_EQ(points.GetCurCrd(&at), -2);
  EXPECT_EQ(points.Next(), -2);
  EXPECT_EQ(points.SetCurNoNam(5, u"other"), -2);
  EXPECT_EQ(points.SetCurCrd({5, 5}), -2);
  EXPECT_EQ(points.SetCurHan(5), -2);
  EXPECT_EQ(points.SetCur(5, u"other", {5, 5}, 5), -2);
  EXPECT_EQ(point.key, 99);
  EXPECT_EQ(point.name, u"kept");
  EXPECT_EQ(at.x, 9);
  EXPECT_FALSE(points.Changed());
  ASSERT_EQ(points.First(), 0);
  ASSERT_EQ(points.GetCur(&point), 0);
  EXPECT_EQ(point.number, 1);
  EXPECT_EQ(point.at.x, 10);
}

TEST(PointList, AddingAndWalkingKeepTheOrderOfEntry) {
  CPntList points(0);
  for (const std::int32_t key : {5, 3, 9, 3}) points.Add(PointAt(key, 0, 0));
  EXPECT_EQ(KeysOf(points), (Keys{5, 3, 9, 3}));  // a key may repeat
  Keys walked;
  GroundPoint at;
  for (int code = points.First(); code == 0; code = points.Next()) {
    Point point;
    ASSERT_EQ(points.GetCur(&point), 0);
    ASSERT_EQ(points.GetCurCrd(&at), 0);
    walked.push_back(point.key);
  }
  EXPECT_EQ(walked, KeysOf(points));
  EXPECT_EQ(points.GetCurCrd(&at), -2);  // ran off the end
}

TEST(PointList, ReplacingKeepsTheKeyAndThePlaceInTheList) {
  CPntList points(0);
  for (const std::int32_t key : {1, 2, 3}) points.Add(PointAt(key, key, key));
  ASSERT_EQ(points.Find(2), 0);
  ASSERT_EQ(points.SetCur(77, u"a longer name than before", {8, 9}, 201), 0);
  EXPECT_EQ(KeysOf(points), (Keys{1, 2, 3}));
  Point point;
  ASSERT_EQ(points.GetCur(&point), 0);
  EXPECT_EQ(point.key, 2);
  EXPECT_EQ(point.number, 77);
  EXPECT_EQ(point.name, u"a longer name than before");
  EXPECT_EQ(point.at.x, 8);
  EXPECT_EQ(point.at.y, 9);
  EXPECT_EQ(point.legend, 201);
}

TEST(PointList, TheChangedFlagFollowsItsRules) {
  CPntList points(0);
  EXPECT_FALSE(points.Changed());
  points.Add(PointAt(1, 0, 0));
  EXPECT_TRUE(points.Changed());
  ASSERT_EQ(points.Find(1), 0);
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
    EXPECT_EQ(row.change(points), 0) << row.what;
    EXPECT_EQ(points.Changed(), row.changed) << row.what;
  }
  points.Clear();
  EXPECT_FALSE(points.Changed());
}

TEST(PointList, RemovingLeavesNoCurrentPointAndAFailedRemovalKeepsIt) {
  CPntList points(0);
  for (const std::int32_t key : {1, 2, 3}) points.Add(PointAt(key, 0, 0));
  ASSERT_EQ(points.Find(3), 0);
  EXPECT_EQ(points.Remove(9), -1);
  Point point;
  ASSERT_EQ(points.GetCur(&point), 0);
  EXPECT_EQ(point.key, 3);
  EXPECT_EQ(points.Remove(1), 0);
  EXPECT_EQ(points.GetCur(&point), -2);
  EXPECT_EQ(KeysOf(points), (Keys{2, 3}));
  EXPECT_EQ(points.Remove(1), -1);
}

TEST(PointList, ClearingForgetsEverything) {
  CPntList points(0);
  for (const std::int32_t key : {1, 2, 3}) points.Add(PointAt(key, 0, 0));
  ASSERT_EQ(points.Find(2), 0);
  points.Clear();
  EXPECT_EQ(points.Count(), 0U);
  EXPECT_EQ(points.Next(), -2);
  EXPECT_EQ(points.First(), -1);
  EXPECT_EQ(points.Find(2), -1);
  std::int32_t key = 99;
  EXPECT_EQ(points.FindNearest(1e9, {0, 0}, &key), -3);
  EXPECT_EQ(key, 0);
  points.Add(PointAt(2, 0, 0));
  EXPECT_EQ(KeysOf(points), (Keys{2}));
}

TEST(PointList, LocatingLeavesTheCurrentPointAlone) {
  CPntList points(0);
  points.Add(PointAt(1, 10, 20));
  points.Add(PointAt(2, 30, 40));
  ASSERT_EQ(points.Find(1), 0);
  GroundPoint at{9, 9};
  EXPECT_FALSE(points.Locate(7, &at));
  EXPECT_EQ(at.x, 9);
  EXPECT_TRUE(points.Locate(2, &at));
  EXPECT_EQ(at.x, 30);
  EXPECT_EQ(at.y, 40);
  ASSERT_EQ(points.GetCurCrd(&at), 0);
  EXPECT_EQ(at.x, 10);
}

TEST(PointList, ExtentCoversEveryPoint) {
  CPntList points(0);
  GroundExtent extent{{9, 9}, {9, 9}};
  EXPECT_EQ(points.GetExtent(&extent), -3);
  EXPECT_EQ(extent.max.x, 0.0);
  EXPECT_EQ(extent.min.y, 0.0);
  points.Add(PointAt(1, 5, -5));
  EXPECT_EQ(points.GetExtent(&extent), 0);
  EXPECT_EQ(extent.max.x, 5.0);
  EXPECT_EQ(extent.min.x, 5.0);
  points.Add(PointAt(2, 7, -9));
  points.Add(PointAt(3, -1, 3));
  EXPECT_EQ(points.GetExtent(&extent), 0);
  EXPECT_EQ(extent.max.x, 7.0);
  EXPECT_EQ(extent.max.y, 3.0);
  EXPECT_EQ(extent.min.x, -1.0);
  EXPECT_EQ(extent.min.y, -9.0);
  ASSERT_EQ(points.Remove(2), 0);
  EXPECT_EQ(points.GetExtent(&extent), 0);
  EXPECT_EQ(extent.max.x, 5.0);
  EXPECT_EQ(extent.min.y, -5.0);
}

TEST(PointList, NamesSurviveManyChanges) {
  CPntList points(0);
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
    ASSERT_EQ(points.Find(key), 0);
    ASSERT_EQ(points.SetCurNoNam(i, name), 0);
    if (i % 500 == 0) {  // remove and enter again
      ASSERT_EQ(points.Remove(key), 0);
      points.Add({key, 0, name, {0, 0}, 1});
    }
  }
  points.ForEach([&](const Point& point) {
    EXPECT_EQ(point.name, names[static_cast<std::size_t>(point.key)]) << point.key;
  });
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
              {"beyond in x", {10.001, 0}, false},
              {"beyond in y", {0, -10.001}, false},
              {"far in both", {20, 20}, false}};
  for (const auto& row : rows) {
    CPntList points(0);
    points.Add(PointAt(7, row.point.x, row.point.y));
    std::int32_t key = 99;
    EXPECT_EQ(points.FindNearest(10, {0, 0}, &key), row.found ? 0 : -1) << row.what;
    EXPECT_EQ(key, row.found ? 7 : 0) << row.what;
  }
}

TEST(FindNearest, OfEqualsTheEarlierOneWins) {
  CPntList points(0);
  points.Add(PointAt(1, 4, 0));
  points.Add(PointAt(2, 0, 3));
  points.Add(PointAt(3, -3, 0));
  points.Add(PointAt(4, 0, -3));
  std::int32_t key = 0;
  EXPECT_EQ(points.FindNearest(10, {0, 0}, &key), 0);
  EXPECT_EQ(key, 2);
}

TEST(FindNearest, StopsAtTenCandidates) {
  CPntList points(0);
  points.Add(PointAt(100, 500, 0));  // no candidate: does not count
  for (int i = 0; i < 10; ++i) points.Add(PointAt(i + 1, 9.0 - i * 0.5, 0));
  points.Add(PointAt(11, 0, 0));
  std::int32_t key = 0;
  EXPECT_EQ(points.FindNearest(10, {0, 0}, &key), 0);
  EXPECT_EQ(key, 10);  // the tenth counts, the eleventh does not although it is nearest
  ASSERT_EQ(points.Remove(3), 0);
  EXPECT_EQ(points.FindNearest(10, {0, 0}, &key), 0);
  EXPECT_EQ(key, 11);
}

TEST(FindNearest, LeavesTheCurrentPointAlone) {
  CPntList points(0);
  points.Add(PointAt(1, 0, 0));
  points.Add(PointAt(2, 1, 1));
  ASSERT_EQ(points.Find(2), 0);
  std::int32_t key = 0;
  ASSERT_EQ(points.FindNearest(10, {0, 0}, &key), 0);
  EXPECT_EQ(key, 1);
  Point point;
  ASSERT_EQ(points.GetCur(&point), 0);
  EXPECT_EQ(point.key, 2);
}

TEST(FindNearest, ANegativeToleranceFindsNothing) {
  CPntList points(0);
  points.Add(PointAt(1, 0, 0));
  std::int32_t key = 99;
  EXPECT_EQ(points.FindNearest(-1, {0, 0}, &key), -1);
  EXPECT_EQ(key, 0);
  EXPECT_EQ(points.FindNearest(0, {0, 0}, &key), 0);
}

}  // namespace
}  // namespace tavix
