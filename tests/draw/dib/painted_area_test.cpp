// What is known of a picture, against a scan of every pixel of it.
#include "draw/dib/painted_area.h"

#include <gtest/gtest.h>

#include "tests/draw/dib/block_picture.h"
#include "tests/draw/random_scene.h"

namespace tavix::test {
namespace {

constexpr std::uint32_t kBlue = 0x000000FF;
constexpr std::uint32_t kRed = 0x00FF0000;

bool EveryPixelHas(const PixelBlock& block, const PixelBox& box, std::uint32_t value) {
  for (int y = box.top; y < box.bottom; ++y) {
    for (int x = box.left; x < box.right; ++x) {
      if (block.Holds(x, y) && !block.Has(x, y, value)) return false;
    }
  }
  return true;
}

class PaintedAreas : public testing::Test {
 protected:
  PixelBox Box() {
    const int left = dice_.Between(-90, 170);
    const int top = dice_.Between(-90, 120);
    return {left, top, left + dice_.Between(0, 90), top + dice_.Between(0, 90)};
  }

  void Fill(const PixelBox& box, std::uint32_t value) {
    for (int y = box.top; y < box.bottom; ++y) {
      for (int x = box.left; x < box.right; ++x) {
        if (picture_.Block().Holds(x, y)) picture_.Set(x, y, value);
      }
    }
  }

  Dice dice_{5};
  BlockPicture picture_{141, 97};
  PaintedArea<PixelBlock> area_{picture_.Block()};
};

// A box counts with the tiles around it: no is allowed where yes would be true, and never the other
// way.
TEST_F(PaintedAreas, AreNeverSaidToBeWhatTheyAreNot) {
  int covered = 0;
  for (int round = 0; round < 30; ++round) {
    const std::uint32_t value = round % 2 == 0 ? kBlue : kRed;
    area_.Use(value);
    for (int i = 0; i < 60; ++i) {
      Fill(Box(), value);
      const PixelBox box = Box();
      if (!area_.Covers(box)) continue;
      ++covered;
      ASSERT_TRUE(EveryPixelHas(picture_.Block(), box, value)) << round << ", " << i;
    }
  }
  EXPECT_GT(covered, 500);
}

TEST_F(PaintedAreas, AreCoveredOnceAllPixelsAre) {
  const PixelBox all{-5, -5, 200, 200};
  area_.Use(kBlue);
  EXPECT_FALSE(area_.Covers(all));
  Fill({0, 0, 141, 96}, kBlue);
  EXPECT_FALSE(area_.Covers(all));
  EXPECT_TRUE(area_.Covers({0, 0, 141, 96 / 32 * 32}));
  Fill({0, 96, 140, 97}, kBlue);
  EXPECT_FALSE(area_.Covers(all)) << "all but the last pixel";
  Fill({140, 96, 141, 97}, kBlue);
  EXPECT_TRUE(area_.Covers(all));
  EXPECT_TRUE(area_.Covers({140, 96, 141, 97}));
}

TEST_F(PaintedAreas, AreForgottenWithTheirColour) {
  const PixelBox all{0, 0, 141, 97};
  Fill(all, kBlue);
  EXPECT_FALSE(area_.Covers(all)) << "no colour is in use yet";
  area_.Use(kBlue);
  EXPECT_TRUE(area_.Covers(all));
  area_.Forget();
  EXPECT_FALSE(area_.Covers(all));
  area_.Use(kRed);
  EXPECT_FALSE(area_.Covers(all));
  Fill({70, 50, 71, 51}, kRed);
  area_.Use(kBlue);
  EXPECT_FALSE(area_.Covers(all)) << "a pixel of another colour since";
}

// A picture of many more pixels than tiles, one row high.
TEST(PaintedStrip, IsCoveredOnceAllPixelsAre) {
  constexpr int kLength = 5'000'000;
  BlockPicture strip(kLength, 1, kBlue);
  PaintedArea<PixelBlock> area(strip.Block());
  area.Use(kBlue);
  strip.Set(kLength - 1, 0, kRed);
  EXPECT_FALSE(area.Covers({0, 0, kLength, 1}));
  EXPECT_TRUE(area.Covers({0, 0, kLength - 1000, 1}));
  strip.Set(kLength - 1, 0, kBlue);
  EXPECT_TRUE(area.Covers({0, 0, kLength, 1}));
}

// Beyond the picture nothing shows.
TEST_F(PaintedAreas, OutsideOfThePictureAreCovered) {
  area_.Use(kBlue);
  for (const PixelBox& box : {PixelBox{-50, 0, 0, 97}, PixelBox{141, 0, 200, 97},
                              PixelBox{0, -9, 141, 0}, PixelBox{0, 97, 141, 98}}) {
    EXPECT_TRUE(area_.Covers(box)) << box.left << ", " << box.top;
  }
}

}  // namespace
}  // namespace tavix::test
