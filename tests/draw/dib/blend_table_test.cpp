#include "draw/dib/blend_table.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace tavix::test {
namespace {

// The row with `make(value)` for each value.
template <class Make>
BlendRow RowOf(Make make) {
  BlendRow row;
  for (int value = 0; value < 256; ++value) {
    row.at(static_cast<std::size_t>(value)) = static_cast<std::uint8_t>(make(value));
  }
  return row;
}

TEST(BlendTableLevels, AreKnownOnceSet) {
  BlendTable blend;
  EXPECT_FALSE(blend.Knows(0x80));
  blend.Set(0x80, RowOf([](int value) { return value / 2; }));
  EXPECT_TRUE(blend.Knows(0x80));
  EXPECT_FALSE(blend.Knows(0x81));
  blend.Forget(0x80);
  EXPECT_FALSE(blend.Knows(0x80));
}

TEST(BlendTableLevels, BlendEachChannelByItself) {
  BlendTable blend;
  blend.Set(0x80, RowOf([](int value) { return value * 128 / 255; }));
  blend.Set(0x00, RowOf([](int) { return 7; }));
  blend.Set(0xFF, RowOf([](int value) { return value; }));
  EXPECT_EQ(0x00804020u, Blended(blend.Rows(), {0x80, 0x80, 0x80}, 0x00FF8040));
  EXPECT_EQ(0x00FF0720u, Blended(blend.Rows(), {0xFF, 0x00, 0x80}, 0x00FF8040));
}

TEST(BlendTableLevels, AreThoseOfRedGreenAndBlue) {
  EXPECT_EQ((CoverageLevels{0x12, 0x34, 0x56}), LevelsOf(0x00123456));
}

TEST(BackgroundWeight, IsFoundForEveryLevelThatRoundsDown) {
  for (int level = 0; level <= 255; ++level) {
    const BlendRow row = RowOf([=](int value) { return value * level / 255; });
    const auto weight = FindWeight(row);
    ASSERT_TRUE(weight) << level;
    for (int value = 0; value < 256; ++value) {
      EXPECT_EQ(row.at(static_cast<std::size_t>(value)),
                Weighted(static_cast<std::uint8_t>(value), *weight))
          << level << ", " << value;
    }
  }
}

TEST(BackgroundWeight, WhenFullLeavesEveryValue) {
  for (int value = 0; value < 256; ++value) {
    EXPECT_EQ(value, Weighted(static_cast<std::uint8_t>(value), kFullWeight));
    EXPECT_EQ(0, Weighted(static_cast<std::uint8_t>(value), 0));
  }
}

// A single value that does not fit is enough.
TEST(BackgroundWeight, IsNotFoundForOtherRows) {
  for (std::size_t wrong = 0; wrong < 255; ++wrong) {
    BlendRow row = RowOf([](int value) { return value * 154 / 255; });
    row.at(wrong) = static_cast<std::uint8_t>(row.at(wrong) + 2);
    EXPECT_FALSE(FindWeight(row)) << wrong;
  }
  EXPECT_FALSE(FindWeight(RowOf([](int value) { return 255 - value; })));
  EXPECT_FALSE(FindWeight(RowOf([](int value) { return value * value / 255; })));
  EXPECT_FALSE(FindWeight(RowOf([](int) { return 255; })));
}

TEST(BackgroundWeight, IsKeptByLevel) {
  BlendTable blend;
  blend.Set(154, RowOf([](int value) { return value * 154 / 255; }));
  blend.Set(33, RowOf([](int value) { return value < 128 ? 0 : 33; }));
  EXPECT_TRUE(blend.Weight(154));
  EXPECT_FALSE(blend.Weight(33));
  EXPECT_TRUE(blend.Knows(33));
}

}  // namespace
}  // namespace tavix::test
