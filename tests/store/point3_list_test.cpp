#include "store/point3_list.h"

#include <gtest/gtest.h>

#include <vector>

namespace tavix {
namespace {

Point3 At(std::int32_t key, double north, double east, double z) {
  return {key, key / 10, u"P", {north, east}, z, 3};
}

std::vector<std::int32_t> Keys(const CPnt3List& points) {
  std::vector<std::int32_t> keys;
  points.ForEach([&](const Point3& point) { keys.push_back(point.key); });
  return keys;
}

TEST(Point3List, WithoutAPointThereIsNoneToReadOrChange) {
  CPnt3List points;
  Point3 point;
  GroundPoint at;
  double z = 0;
  EXPECT_EQ(-1, points.Find(1));
  EXPECT_EQ(-2, points.GetCur(&point));
  EXPECT_EQ(-2, points.GetCurCrd(&at, &z));
  EXPECT_EQ(-2, points.SetCur(1, u"", {}, 0, 1));
  EXPECT_EQ(-2, points.SetCurHan(1));
  EXPECT_EQ(-2, points.SetCurNoNam(1, u""));
}

TEST(Point3List, FindsAPointByItsKey) {
  CPnt3List points;
  for (const std::int32_t key : {4, -7, 2147483647}) points.Add(At(key, key, 1, 2));
  for (const std::int32_t key : {-7, 2147483647, 4}) {
    ASSERT_EQ(0, points.Find(key));
    GroundPoint at;
    double z = 0;
    ASSERT_EQ(0, points.GetCurCrd(&at, &z));
    EXPECT_EQ(key, at.north);
    EXPECT_EQ(1, at.east);
    EXPECT_EQ(2, z);
  }
}

// The plan's store takes the one nearest to the current point.
TEST(Point3List, OfEqualKeysTheFirstIsFound) {
  CPnt3List points;
  points.Add(At(1, 10, 0, 0));
  points.Add(At(2, 20, 0, 0));
  points.Add(At(1, 30, 0, 0));
  EXPECT_EQ(0, points.Find(2));
  EXPECT_EQ(0, points.Find(1));
  Point3 point;
  EXPECT_EQ(0, points.GetCur(&point));
  EXPECT_EQ(10, point.at.north);
}

TEST(Point3List, ChangesEverythingButTheKey) {
  CPnt3List points;
  points.Add(At(5, 1, 2, 3));
  ASSERT_EQ(0, points.Find(5));
  points.SetChanged(false);
  EXPECT_EQ(0, points.SetCur(77, u"T-12", {-1, -2}, -3, 9));
  EXPECT_TRUE(points.Changed());
  Point3 point;
  ASSERT_EQ(0, points.GetCur(&point));
  EXPECT_EQ(5, point.key);
  EXPECT_EQ(77, point.number);
  EXPECT_EQ(u"T-12", point.name);
  EXPECT_EQ(-1, point.at.north);
  EXPECT_EQ(-2, point.at.east);
  EXPECT_EQ(-3, point.z);
  EXPECT_EQ(9, point.legend);
}

TEST(Point3List, RemovedPointsLeaveTheOrderOfTheOthers) {
  CPnt3List points;
  for (int key = 1; key <= 5; ++key) points.Add(At(key, key, 0, 0));
  EXPECT_EQ(0, points.Remove(3));
  EXPECT_EQ(-1, points.Remove(3));
  EXPECT_EQ((std::vector<std::int32_t>{1, 2, 4, 5}), Keys(points));
  EXPECT_EQ(0, points.Clear());
  EXPECT_EQ(0u, points.Count());
}

TEST(Point3List, ExtentIsThatOfPlanAndHeights) {
  CPnt3List points;
  GroundExtent3 extent;
  extent.max_z = 1;
  EXPECT_EQ(-3, points.GetExtent(&extent));
  EXPECT_EQ(0, extent.max_z);
  points.Add(At(1, 10, 20, 5));
  points.Add(At(2, -10, 30, -8));
  points.Add(At(3, 0, 25, 7));
  EXPECT_EQ(0, points.GetExtent(&extent));
  EXPECT_EQ(10, extent.plan.max.north);
  EXPECT_EQ(-10, extent.plan.min.north);
  EXPECT_EQ(30, extent.plan.max.east);
  EXPECT_EQ(20, extent.plan.min.east);
  EXPECT_EQ(7, extent.max_z);
  EXPECT_EQ(-8, extent.min_z);
}

}  // namespace
}  // namespace tavix
