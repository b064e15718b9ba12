#include "draw/dib/glyph.h"

#include <gtest/gtest.h>

#include "tests/draw/dib/block_picture.h"

namespace tavix::test {
namespace {

constexpr std::uint32_t kGrey80 = 0x00808080;

// A level that leaves half of the background, and black.
BlendTable Blend() {
  BlendTable blend;
  for (const int level : {0, 0x80}) {
    BlendRow row;
    for (int value = 0; value < 256; ++value) {
      row.at(static_cast<std::size_t>(value)) = static_cast<std::uint8_t>(value * level / 255);
    }
    blend.Set(static_cast<std::uint8_t>(level), row);
  }
  return blend;
}

// A black and a grey pixel below each other, in a cell of two columns.
BlockPicture CharacterPicture() {
  BlockPicture picture(7, 6);
  picture.Set(3, 3, 0);
  picture.Set(3, 4, kGrey80);
  return picture;
}

TEST(Glyphs, RememberTheirPixelsAndTheWayToTheNext) {
  const auto glyph = Glyph::FromPicture(CharacterPicture().Block(), {2, 2}, 2);
  ASSERT_TRUE(glyph);
  EXPECT_EQ(2, glyph->Advance());
  ASSERT_EQ(2u, glyph->Pixels().size());
  EXPECT_EQ((CoverageLevels{0, 0, 0}), glyph->Pixels()[0].levels);
  EXPECT_EQ(1, glyph->Pixels()[1].x);
  EXPECT_EQ(2, glyph->Pixels()[1].y);
  EXPECT_EQ((CoverageLevels{0x80, 0x80, 0x80}), glyph->Pixels()[1].levels);
}

TEST(Glyphs, DarkenWhatLiesBelow) {
  const auto glyph = Glyph::FromPicture(CharacterPicture().Block(), {2, 2}, 2);
  const BlendTable blend = Blend();
  BlockPicture drawn(4, 4, 0x00FF8040);
  glyph->Draw(drawn.Block(), blend, {0, 0});
  EXPECT_EQ(0u, drawn.At(1, 1));
  EXPECT_EQ(0x00804020u, drawn.At(1, 2));
  glyph->Draw(drawn.Block(), blend, {0, 0});
  EXPECT_EQ(0x00402010u, drawn.At(1, 2)) << "twice as much by two";
}

TEST(Glyphs, AreCutAtEachEdge) {
  const auto glyph = Glyph::FromPicture(CharacterPicture().Block(), {2, 2}, 2);
  const BlendTable blend = Blend();
  const struct {
    ScreenPoint at;
    const char* picture;
  } rows[] = {{{0, -2}, ".#\n..\n"}, {{0, 0}, "..\n.#\n"},  {{-1, -1}, "#.\n#.\n"},
              {{-2, 0}, "..\n..\n"}, {{1, -1}, "..\n..\n"}, {{0, 9}, "..\n..\n"}};
  for (const auto& [at, picture] : rows) {
    const BlockPicture drawn(2, 2);
    glyph->Draw(drawn.Block(), blend, at);
    EXPECT_EQ(picture, drawn.Text()) << at.x << ", " << at.y;
  }
}

TEST(Glyphs, BlendEachChannelByItsLevel) {
  BlockPicture picture = CharacterPicture();
  picture.Set(3, 4, 0x0080FF00);
  const auto glyph = Glyph::FromPicture(picture.Block(), {2, 2}, 2);
  ASSERT_TRUE(glyph);
  EXPECT_EQ((CoverageLevels{0x80, 0xFF, 0}), glyph->Pixels()[1].levels);
  BlendTable blend = Blend();
  BlendRow row;
  for (std::size_t value = 0; value < row.size(); ++value) {
    row.at(value) = static_cast<std::uint8_t>(value);
  }
  blend.Set(0xFF, row);
  BlockPicture drawn(4, 4, 0x00FF8040);
  glyph->Draw(drawn.Block(), blend, {0, 0});
  EXPECT_EQ(0x00808000u, drawn.At(1, 2));
}

TEST(Glyphs, AreNotMadeOfPixelsWithAHighByte) {
  BlockPicture picture = CharacterPicture();
  picture.Set(2, 2, 0x01808080);
  EXPECT_FALSE(Glyph::FromPicture(picture.Block(), {2, 2}, 2));
}

// What lies at the edge may be a part of more.
TEST(Glyphs, AreNotMadeOfInkAtThePicturesEdge) {
  for (const ScreenPoint& at : {ScreenPoint{0, 3}, {6, 3}, {3, 0}, {3, 5}}) {
    BlockPicture picture = CharacterPicture();
    picture.Set(at.x, at.y, 0);
    EXPECT_FALSE(Glyph::FromPicture(picture.Block(), {2, 2}, 2)) << at.x << ", " << at.y;
  }
}

// Pixels beside the cell, in the rows of the other character's pixels or not.
TEST(Glyphs, LieUnderTheNextOneWhereTheirPixelsMeet) {
  BlockPicture wide = CharacterPicture();
  wide.Set(4, 3, 0);
  BlockPicture early = CharacterPicture();
  early.Set(2, 3, 0);
  BlockPicture low = CharacterPicture();
  low.Set(2, 2, 0);
  const auto made = [](const BlockPicture& picture) {
    return Glyph::FromPicture(picture.Block(), {2, 2}, 2).value();
  };
  const Glyph plain = made(CharacterPicture());
  EXPECT_FALSE(plain.LeavesCell());
  EXPECT_TRUE(made(wide).LeavesCell());
  EXPECT_FALSE(made(early).LeavesCell());
  EXPECT_FALSE(plain.LiesUnder(plain));
  EXPECT_FALSE(made(wide).LiesUnder(plain)) << "beside each other";
  EXPECT_FALSE(plain.LiesUnder(made(early))) << "beside each other";
  EXPECT_TRUE(made(wide).LiesUnder(made(early)));
  EXPECT_FALSE(made(wide).LiesUnder(made(low))) << "in different rows";
}

}  // namespace
}  // namespace tavix::test
