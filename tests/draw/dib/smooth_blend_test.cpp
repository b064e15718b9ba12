#include "draw/dib/smooth_blend.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace tavix::test {
namespace {

// The ramp with `make(value)` for each value.
template <class Make>
BlendRamp RampOf(Make make) {
  BlendRamp ramp;
  for (int value = 0; value < 256; ++value) {
    ramp.at(static_cast<std::size_t>(value)) = static_cast<std::uint8_t>(make(value));
  }
  return ramp;
}

TEST(SmoothBlendLevels, AreKnownOnceLearnt) {
  SmoothBlend blend;
  EXPECT_FALSE(blend.Knows(0x80));
  blend.Learn(0x80, RampOf([](int value) { return value / 2; }));
  EXPECT_TRUE(blend.Knows(0x80));
  EXPECT_FALSE(blend.Knows(0x81));
}

TEST(SmoothBlendLevels, TakeEachColourByItself) {
  const BlendRamp ramp = RampOf([](int value) { return value * 128 / 255; });
  EXPECT_EQ(0x00804020u, Blended(ramp, 0x00FF8040));
}

TEST(BlendShare, IsFoundForEveryLevelThatRoundsDown) {
  for (int level = 0; level <= 255; ++level) {
    const BlendRamp ramp = RampOf([=](int value) { return value * level / 255; });
    const auto share = FindShare(ramp);
    ASSERT_TRUE(share) << level;
    for (int value = 0; value < 256; ++value) {
      EXPECT_EQ(ramp.at(static_cast<std::size_t>(value)),
                LeftByShare(static_cast<std::uint8_t>(value), *share))
          << level << ", " << value;
    }
  }
}

TEST(BlendShare, OfTheWholeLeavesEveryValue) {
  for (int value = 0; value < 256; ++value) {
    EXPECT_EQ(value, LeftByShare(static_cast<std::uint8_t>(value), kWholeShare));
    EXPECT_EQ(0, LeftByShare(static_cast<std::uint8_t>(value), 0));
  }
}

// A single value that does not fit is enough.
TEST(BlendShare, IsNotFoundForOtherRamps) {
  for (std::size_t wrong = 0; wrong < 255; ++wrong) {
    BlendRamp ramp = RampOf([](int value) { return value * 154 / 255; });
    ramp.at(wrong) = static_cast<std::uint8_t>(ramp.at(wrong) + 2);
    EXPECT_FALSE(FindShare(ramp)) << wrong;
  }
  EXPECT_FALSE(FindShare(RampOf([](int value) { return 255 - value; })));
  EXPECT_FALSE(FindShare(RampOf([](int value) { return value * value / 255; })));
  EXPECT_FALSE(FindShare(RampOf([](int) { return 255; })));
}

TEST(BlendShare, IsKeptByLevel) {
  SmoothBlend blend;
  blend.Learn(154, RampOf([](int value) { return value * 154 / 255; }));
  blend.Learn(33, RampOf([](int value) { return value < 128 ? 0 : 33; }));
  EXPECT_TRUE(blend.Share(154));
  EXPECT_FALSE(blend.Share(33));
  EXPECT_TRUE(blend.Knows(33));
}

}  // namespace
}  // namespace tavix::test
