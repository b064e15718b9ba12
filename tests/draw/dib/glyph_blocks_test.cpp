#include "draw/dib/glyph.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/draw/dib/block_picture.h"

namespace tavix::test {
namespace {

constexpr int kCell = 11;
constexpr ScreenPoint kOrigin{4, 3};

// Levels of a fixed weight, but for `odd`.
BlendTable Blend(int odd) {
  BlendTable blend;
  for (int level = 0; level < 255; ++level) {
    BlendRow row;
    for (int value = 0; value < 256; ++value) {
      row.at(static_cast<std::size_t>(value)) = static_cast<std::uint8_t>(value * level / 255);
    }
    if (level == odd) row[100] = static_cast<std::uint8_t>(row[100] + 2);
    blend.Set(static_cast<std::uint8_t>(level), row);
  }
  return blend;
}

// A glyph of `pixels` pixels anywhere in its cell.
Glyph AnyGlyph(std::minstd_rand& random, int pixels) {
  BlockPicture picture(20, 20);
  for (int i = 0; i < pixels; ++i) {
    const auto level = [&] { return static_cast<std::uint32_t>(random() % 254); };
    const int x = kOrigin.x + static_cast<int>(random() % kCell);
    const int y = 1 + static_cast<int>(random() % 16);
    const std::uint32_t red = level();
    const std::uint32_t green = level();
    picture.Set(x, y, red << 16 | green << 8 | level());
  }
  return Glyph::FromPicture(picture.Block(), kOrigin, kCell).value();
}

void Colour(BlockPicture& picture) {
  std::minstd_rand random;
  for (int y = 0; y < picture.Block().height; ++y) {
    for (int x = 0; x < picture.Block().width; ++x) {
      picture.Set(x, y, static_cast<std::uint32_t>(random()) & 0x00FFFFFF);
    }
  }
}

TEST(GlyphsInBlocks, DrawWhatTheGlyphDraws) {
  const BlendTable blend = Blend(-1);
  std::minstd_rand random;
  for (const int pixels : {0, 1, 2, 5, 20, 60, 200}) {
    for (int round = 0; round < 20; ++round) {
      const Glyph glyph = AnyGlyph(random, pixels);
      const auto blocks = GlyphBlocks::From(glyph, blend);
      ASSERT_TRUE(blocks);
      BlockPicture expected(24, 24);
      BlockPicture drawn(24, 24);
      Colour(expected);
      Colour(drawn);
      ASSERT_TRUE(blocks->Fits(drawn.Block(), {5, 5}));
      glyph.Draw(expected.Block(), blend, {5, 5});
      blocks->Draw(drawn.Block(), {5, 5});
      for (int y = 0; y < 24; ++y) {
        for (int x = 0; x < 24; ++x) ASSERT_EQ(expected.At(x, y), drawn.At(x, y)) << pixels;
      }
    }
  }
}

// Wherever they fit, nothing outside of the picture is touched; the sanitizers watch.
TEST(GlyphsInBlocks, FitOnlyWhereAllOfABlockIsInside) {
  const BlendTable blend = Blend(-1);
  std::minstd_rand random;
  for (int round = 0; round < 50; ++round) {
    const auto blocks = GlyphBlocks::From(AnyGlyph(random, 1 + round), blend);
    ASSERT_TRUE(blocks);
    BlockPicture drawn(17, 19);
    int fitting = 0;
    for (int y = -20; y < 30; ++y) {
      for (int x = -20; x < 30; ++x) {
        if (!blocks->Fits(drawn.Block(), {x, y})) continue;
        blocks->Draw(drawn.Block(), {x, y});
        ++fitting;
      }
    }
    EXPECT_LT(0, fitting);
  }
}

TEST(GlyphsInBlocks, AreNotMadeWhereALevelHasNoFixedWeight) {
  BlockPicture picture(20, 20);
  picture.Set(5, 5, 154 * 0x00010101);
  const auto glyph = Glyph::FromPicture(picture.Block(), kOrigin, kCell);
  ASSERT_TRUE(glyph);
  EXPECT_TRUE(GlyphBlocks::From(*glyph, Blend(153)));
  EXPECT_FALSE(GlyphBlocks::From(*glyph, Blend(154)));
}

}  // namespace
}  // namespace tavix::test
