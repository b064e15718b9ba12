#include "draw/dib/mark_mask.h"

#include <gtest/gtest.h>

#include "tests/draw/dib/block_picture.h"

namespace tavix::test {
namespace {

constexpr std::uint32_t kInk = 0x00123456;

// A shape with a gap, drawn on both papers with its origin in the middle.
class MarkMasks : public testing::Test {
 protected:
  MarkMasks() {
    for (const ScreenPoint& at : {ScreenPoint{1, 1}, {2, 1}, {4, 1}, {3, 3}}) {
      Set(at, kInk);
    }
  }

  void Set(ScreenPoint at, std::uint32_t color) {
    over_white_.Set(at.x, at.y, color);
    over_black_.Set(at.x, at.y, color);
  }

  [[nodiscard]] std::optional<MarkMask> Make() const {
    return MarkMask::FromPictures(over_white_.Block(), over_black_.Block(), {2, 2});
  }

  BlockPicture over_white_{6, 5, MarkMask::kWhitePaper};
  BlockPicture over_black_{6, 5, MarkMask::kBlackPaper};
};

TEST_F(MarkMasks, DrawTheirShapeAtAPlace) {
  const BlockPicture drawn(8, 5);
  Make()->Draw(drawn.Block(), {3, 2});
  EXPECT_EQ("........\n..##.#..\n........\n....#...\n........\n", drawn.Text());
  EXPECT_EQ(kInk, drawn.At(2, 1));
}

TEST_F(MarkMasks, AreCutAtEachEdge) {
  const struct {
    ScreenPoint at;
    const char* picture;
  } rows[] = {
      {{0, 1}, "#.#.\n....\n.#..\n"},  {{3, 1}, "..##\n....\n....\n"},
      {{1, 0}, "....\n..#.\n....\n"},  {{1, 3}, "....\n....\n##.#\n"},
      {{-9, 0}, "....\n....\n....\n"}, {{0, 90}, "....\n....\n....\n"},
  };
  for (const auto& [at, picture] : rows) {
    const BlockPicture drawn(4, 3);
    Make()->Draw(drawn.Block(), at);
    EXPECT_EQ(picture, drawn.Text()) << at.x << ", " << at.y;
  }
}

TEST_F(MarkMasks, MayBeWhiteOrBlack) {
  for (const std::uint32_t color : {MarkMask::kWhitePaper, MarkMask::kBlackPaper}) {
    BlockPicture over_white(3, 1, MarkMask::kWhitePaper);
    BlockPicture over_black(3, 1, MarkMask::kBlackPaper);
    over_white.Set(1, 0, color);
    over_black.Set(1, 0, color);
    const auto mask = MarkMask::FromPictures(over_white.Block(), over_black.Block(), {0, 0});
    ASSERT_TRUE(mask);
    const BlockPicture drawn(3, 1, kInk);
    mask->Draw(drawn.Block(), {0, 0});
    EXPECT_EQ(".#.\n", drawn.Text());
    EXPECT_EQ(color, drawn.At(1, 0));
  }
}

TEST_F(MarkMasks, OfNothingDrawNothing) {
  const BlockPicture white(3, 3, MarkMask::kWhitePaper);
  const BlockPicture black(3, 3, MarkMask::kBlackPaper);
  const auto mask = MarkMask::FromPictures(white.Block(), black.Block(), {1, 1});
  ASSERT_TRUE(mask);
  const BlockPicture drawn(3, 3);
  mask->Draw(drawn.Block(), {1, 1});
  mask->Draw(drawn.Block(), {-1, 9});
  EXPECT_EQ("...\n...\n...\n", drawn.Text());
}

TEST_F(MarkMasks, AreNotMadeOfTwoColours) {
  Set({4, 4}, kInk + 1);
  EXPECT_FALSE(Make());
}

TEST_F(MarkMasks, AreNotMadeOfWhatLetsThePaperShow) {
  over_white_.Set(4, 4, 0x00808080);
  EXPECT_FALSE(Make()) << "grey on white, nothing on black";
  over_black_.Set(4, 4, 0x00404040);
  EXPECT_FALSE(Make()) << "two greys";
}

}  // namespace
}  // namespace tavix::test
