// Lines on bits against the system's.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "tests/draw/dib/twin_canvases.h"

namespace tavix::test {
namespace {

constexpr int kWidth = 300;
constexpr int kHeight = 200;

class BitsLines : public testing::Test {
 protected:
  void TearDown() override { EXPECT_TRUE(twins_.ShowSomething()); }

  void Use(int width) { twins_.UsePen({width, dice_.Color()}); }

  LearntDrawing learnt_;
  TwinCanvases twins_{kWidth, kHeight, learnt_};
  Dice dice_{1};
};

TEST_F(BitsLines, OfEverySlopeAreTheSystems) {
  constexpr int kReach = 95;
  for (int dy = -kReach; dy <= kReach; dy += 5) {
    for (int dx = -kReach; dx <= kReach; dx += 3) {
      Use(1);
      const ScreenPoint start{150 + dx % 7, 100 + dy % 4};
      twins_.Line({start, {start.x + dx, start.y + dy}});
    }
  }
  EXPECT_TRUE(twins_.AreSame());
}

// From inside of the picture to far around it, most of them crossing its edges or just not.
TEST_F(BitsLines, OfCirclesAroundThePictureAreTheSystems) {
  for (int i = 0; i < 400; ++i) {
    Use(i % 5 == 0 ? 40 : i % 3);
    const ScreenPoint at = dice_.Place(kWidth, kHeight, 200);
    const int across = std::max(std::abs(at.x), std::abs(kWidth - at.x));
    const int radius = i % 2 == 0 ? dice_.Between(0, 500) : across + dice_.Between(-60, 120);
    twins_.Circle(at, i % 7 == 0 ? -radius : radius);
    ASSERT_TRUE(twins_.AreSame()) << i << ": " << at.x << ", " << at.y << ", " << radius;
  }
}

TEST_F(BitsLines, OfFewPixelsAreTheSystems) {
  for (int dy = -4; dy <= 4; ++dy) {
    for (int dx = -4; dx <= 4; ++dx) {
      Use(dx & 1);
      const ScreenPoint start{60 + dx * 11, 60 + dy * 11};
      twins_.Line({start, {start.x + dx, start.y + dy}});
    }
  }
  EXPECT_TRUE(twins_.AreSame());
}

TEST_F(BitsLines, AreCutLikeTheSystems) {
  for (const int outside : {0, 1, 40, 900, kFarthestStep - kWidth}) {
    for (int i = 0; i < 200; ++i) {
      Use(i & 1);
      const ScreenPoint start = dice_.Place(kWidth, kHeight, outside);
      twins_.Line({start, dice_.Place(kWidth, kHeight, outside)});
    }
    EXPECT_TRUE(twins_.AreSame()) << outside;
  }
}

TEST_F(BitsLines, FromAfarAreTheSystems) {
  for (const int outside : {kFarthestStep, 1 << 20, 1 << 29}) {
    for (int i = 0; i < 100; ++i) {
      Use(1);
      const ScreenPoint start = dice_.Place(kWidth, kHeight, 0);
      twins_.Line({start, dice_.Place(kWidth, kHeight, outside)});
    }
    EXPECT_TRUE(twins_.AreSame()) << outside;
  }
}

TEST_F(BitsLines, OfWidePensAreTheSystems) {
  for (const int width : {2, 3, 7, -1, -5}) {
    for (int i = 0; i < 20; ++i) {
      Use(width);
      const ScreenPoint start = dice_.Place(kWidth, kHeight, 10);
      twins_.Line({start, dice_.Place(kWidth, kHeight, 10)});
    }
    EXPECT_TRUE(twins_.AreSame()) << width;
  }
}

TEST_F(BitsLines, OfColoursThatAreNoneAreTheSystems) {
  for (const std::int32_t high_byte : {0x01, 0x02, 0x10, 0x7F}) {
    twins_.UsePen({1, high_byte << 24 | 0x000003});
    twins_.Line({{high_byte, 5}, {high_byte + 90, 150}});
  }
  EXPECT_TRUE(twins_.AreSame());
}

TEST_F(BitsLines, KeepTheirOrderAmongWhatTheSystemDraws) {
  for (int i = 0; i < 300; ++i) {
    Use(i % 3);
    const ScreenPoint start = dice_.Place(kWidth, kHeight, 0);
    twins_.Line({start, dice_.Place(kWidth, kHeight, 0)});
    if (i % 5 == 0) twins_.Circle(dice_.Place(kWidth, kHeight, 0), dice_.Between(-40, 40));
  }
  EXPECT_TRUE(twins_.AreSame());
}

}  // namespace
}  // namespace tavix::test
