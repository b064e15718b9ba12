#include "view/extent.h"

#include <gtest/gtest.h>

namespace tavix {
namespace {

TEST(Extent, NothingHasZeros) {
  const ExtentBuilder builder;
  EXPECT_TRUE(builder.IsEmpty());
  EXPECT_EQ(builder.Extent().max.x, 0.0);
  EXPECT_EQ(builder.Extent().max.y, 0.0);
  EXPECT_EQ(builder.Extent().min.x, 0.0);
  EXPECT_EQ(builder.Extent().min.y, 0.0);
}

TEST(Extent, OnePointIsBothCorners) {
  ExtentBuilder builder;
  builder.Include(GroundPoint{-5, 7});
  EXPECT_FALSE(builder.IsEmpty());
  EXPECT_EQ(builder.Extent().max.x, -5.0);
  EXPECT_EQ(builder.Extent().min.x, -5.0);
  EXPECT_EQ(builder.Extent().max.y, 7.0);
  EXPECT_EQ(builder.Extent().min.y, 7.0);
}

TEST(Extent, EachAxisGrowsOnItsOwn) {
  ExtentBuilder builder;
  for (const GroundPoint point : {GroundPoint{1, 1}, {3, 0}, {2, 5}, {-4, 2}, {0, 0}}) {
    builder.Include(point);
  }
  EXPECT_EQ(builder.Extent().max.x, 3.0);
  EXPECT_EQ(builder.Extent().min.x, -4.0);
  EXPECT_EQ(builder.Extent().max.y, 5.0);
  EXPECT_EQ(builder.Extent().min.y, 0.0);
}

}  // namespace
}  // namespace tavix
