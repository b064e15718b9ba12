#include "host/pictures/picture_size.h"

#include <gtest/gtest.h>

namespace fieldhost {
namespace {

TEST(PictureSizeOf, TakesTwoSidesWithinTheLimits) {
  for (const char* text :
       {"240", "x", "240x", "x320", "240x320x1", "240*320", "-240x320", "99x320", "240x99",
        "8193x320", "240x8193", "240x99999999999", "2 40x320", "24ax320", "", "240X320"}) {
    EXPECT_FALSE(PictureSizeOf(text)) << text;
  }
  const struct {
    const char* text;
    int width;
    int height;
  } rows[] = {{"100x100", 100, 100}, {"8192x8192", 8192, 8192}, {"1654x2339", 1654, 2339}};
  for (const auto& row : rows) {
    const std::optional<PictureSize> size = PictureSizeOf(row.text);
    ASSERT_TRUE(size) << row.text;
    EXPECT_EQ(row.width, size->width);
    EXPECT_EQ(row.height, size->height);
  }
}

TEST(Within, KeepsTheProportions) {
  const struct {
    PictureSize size;
    int longest;
    PictureSize within;
  } rows[] = {
      {{480, 600}, 1000, {480, 600}},    {{1000, 1000}, 1000, {1000, 1000}},
      {{1654, 2339}, 1000, {707, 1000}}, {{2339, 1654}, 1000, {1000, 707}},
      {{8192, 100}, 1000, {1000, 12}},   {{8192, 1}, 1000, {1000, 1}},
  };
  for (const auto& row : rows) {
    const PictureSize within = Within(row.size, row.longest);
    EXPECT_EQ(row.within.width, within.width);
    EXPECT_EQ(row.within.height, within.height);
  }
}

}  // namespace
}  // namespace fieldhost
