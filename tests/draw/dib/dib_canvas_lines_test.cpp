// Lines of the DIB canvas against GDI's.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "tests/draw/dib/canvas_pair.h"

namespace tavix::test {
namespace {

constexpr int kWidth = 300;
constexpr int kHeight = 200;

class DibLines : public testing::Test {
 protected:
  void TearDown() override { EXPECT_TRUE(pair_.ShowSomething()); }

  void Use(int width) { pair_.UsePen({width, dice_.Color()}); }

  RasterCache cache_;
  CanvasPair pair_{kWidth, kHeight, cache_};
  Dice dice_{1};
};

TEST_F(DibLines, OfEverySlopeMatchGdi) {
  constexpr int kReach = 95;
  for (int dy = -kReach; dy <= kReach; dy += 5) {
    for (int dx = -kReach; dx <= kReach; dx += 3) {
      Use(1);
      const ScreenPoint start{150 + dx % 7, 100 + dy % 4};
      pair_.Line({start, {start.x + dx, start.y + dy}});
    }
  }
  EXPECT_TRUE(pair_.AreSame());
}

// From inside of the picture to far around it, most of them crossing its edges or just not.
TEST_F(DibLines, OfCirclesAroundThePictureMatchGdi) {
  for (int i = 0; i < 400; ++i) {
    Use(i % 5 == 0 ? 40 : i % 3);
    const ScreenPoint at = dice_.Place(kWidth, kHeight, 200);
    const int across = std::max(std::abs(at.x), std::abs(kWidth - at.x));
    const int radius = i % 2 == 0 ? dice_.Between(0, 500) : across + dice_.Between(-60, 120);
    pair_.Circle(at, i % 7 == 0 ? -radius : radius);
    ASSERT_TRUE(pair_.AreSame()) << i << ": " << at.x << ", " << at.y << ", " << radius;
  }
}

TEST_F(DibLines, OfFewPixelsMatchGdi) {
  for (int dy = -4; dy <= 4; ++dy) {
    for (int dx = -4; dx <= 4; ++dx) {
      Use(dx & 1);
      const ScreenPoint start{60 + dx * 11, 60 + dy * 11};
      pair_.Line({start, {start.x + dx, start.y + dy}});
    }
  }
  EXPECT_TRUE(pair_.AreSame());
}

TEST_F(DibLines, AreCutAsGdiDoes) {
  for (const int outside : {0, 1, 40, 900, kFarthestStep - kWidth}) {
    for (int i = 0; i < 200; ++i) {
      Use(i & 1);
      const ScreenPoint start = dice_.Place(kWidth, kHeight, outside);
      pair_.Line({start, dice_.Place(kWidth, kHeight, outside)});
    }
    EXPECT_TRUE(pair_.AreSame()) << outside;
  }
}

TEST_F(DibLines, FromAfarMatchGdi) {
  for (const int outside : {kFarthestStep, 1 << 20, 1 << 29}) {
    for (int i = 0; i < 100; ++i) {
      Use(1);
      const ScreenPoint start = dice_.Place(kWidth, kHeight, 0);
      pair_.Line({start, dice_.Place(kWidth, kHeight, outside)});
    }
    EXPECT_TRUE(pair_.AreSame()) << outside;
  }
}

TEST_F(DibLines, OfWidePensMatchGdi) {
  for (const int width : {2, 3, 7, -1, -5}) {
    for (int i = 0; i < 20; ++i) {
      Use(width);
      const ScreenPoint start = dice_.Place(kWidth, kHeight, 10);
      pair_.Line({start, dice_.Place(kWidth, kHeight, 10)});
    }
    EXPECT_TRUE(pair_.AreSame()) << width;
  }
}

// Again and again, so that they are drawn here.
TEST_F(DibLines, OfWidePensAndFewPixelsMatchGdi) {
  for (const int width : {2, 3, 5, -2}) {
    for (int round = 0; round < 20; ++round) {
      Use(width);
      for (int dy = -5; dy <= 5; ++dy) {
        for (int dx = -5; dx <= 5; ++dx) {
          const ScreenPoint start = dice_.Place(kWidth, kHeight, 12);
          pair_.Line({start, {start.x + dx, start.y + dy}});
        }
      }
    }
    EXPECT_TRUE(pair_.AreSame()) << width;
  }
}

TEST_F(DibLines, OfSmallCirclesMatchGdi) {
  for (int width = 0; width <= 3; ++width) {
    Use(width);
    for (int i = 0; i < 3000; ++i) {
      const int radius = dice_.Between(-70, 70);
      pair_.Circle(dice_.Place(kWidth, kHeight, 40), radius);
    }
    EXPECT_TRUE(pair_.AreSame()) << width;
  }
}

TEST_F(DibLines, OfPaletteColoursMatchGdi) {
  for (const std::int32_t high_byte : {0x01, 0x02, 0x10, 0x7F}) {
    pair_.UsePen({1, high_byte << 24 | 0x000003});
    pair_.Line({{high_byte, 5}, {high_byte + 90, 150}});
  }
  EXPECT_TRUE(pair_.AreSame());
}

TEST_F(DibLines, KeepTheirOrderAmongWhatGdiDraws) {
  for (int i = 0; i < 300; ++i) {
    Use(i % 3);
    const ScreenPoint start = dice_.Place(kWidth, kHeight, 0);
    pair_.Line({start, dice_.Place(kWidth, kHeight, 0)});
    if (i % 5 == 0) pair_.Circle(dice_.Place(kWidth, kHeight, 0), dice_.Between(-40, 40));
  }
  EXPECT_TRUE(pair_.AreSame());
}

}  // namespace
}  // namespace tavix::test
