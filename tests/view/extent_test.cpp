#include "view/extent.h"

#include <gtest/gtest.h>

namespace tavix {
namespace {

TEST(Extent, NothingHasZeros) {
  const ExtentBuilder builder;
  EXPECT_TRUE(builder.IsEmpty());
  EXPECT_EQ(0.0, builder.Extent().max.north);
  EXPECT_EQ(0.0, builder.Extent().max.east);
  EXPECT_EQ(0.0, builder.Extent().min.north);
  EXPECT_EQ(0.0, builder.Extent().min.east);
}

TEST(Extent, OnePointIsBothCorners) {
  ExtentBuilder builder;
  builder.Include(GroundPoint{-5, 7});
  EXPECT_FALSE(builder.IsEmpty());
  EXPECT_EQ(-5.0, builder.Extent().max.north);
  EXPECT_EQ(-5.0, builder.Extent().min.north);
  EXPECT_EQ(7.0, builder.Extent().max.east);
  EXPECT_EQ(7.0, builder.Extent().min.east);
}

TEST(Extent, EachAxisGrowsOnItsOwn) {
  ExtentBuilder builder;
  for (const GroundPoint point : {GroundPoint{1, 1}, {3, 0}, {2, 5}, {-4, 2}, {0, 0}}) {
    builder.Include(point);
  }
  EXPECT_EQ(3.0, builder.Extent().max.north);
  EXPECT_EQ(-4.0, builder.Extent().min.north);
  EXPECT_EQ(5.0, builder.Extent().max.east);
  EXPECT_EQ(0.0, builder.Extent().min.east);
}

TEST(Extent, HasASizeAndACentre) {
  ExtentBuilder builder;
  builder.Include(GroundExtent{{3, 5}, {-4, 0}});
  EXPECT_EQ(5.0, builder.Extent().Size().east);
  EXPECT_EQ(7.0, builder.Extent().Size().north);
  EXPECT_EQ(-0.5, builder.Extent().Centre().north);
  EXPECT_EQ(2.5, builder.Extent().Centre().east);
}

}  // namespace
}  // namespace tavix
