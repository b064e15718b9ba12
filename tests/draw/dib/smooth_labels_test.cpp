// GDI's text read back: labels drawn from right glyphs are verified, others are not.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "draw/dib/smooth_labels.h"

namespace tavix::test {
namespace {

constexpr int kHeight = 10;

class LabelVerification : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(reference_.IsMade());
    for (const char16_t character : text_) {
      const Letter letter{character};
      const auto glyph = reference_.ReadGlyph(letter);
      ASSERT_TRUE(glyph);
      reference_.ReadLevels(letter, *glyph, blend_);
      glyphs_.push_back(*glyph);
    }
  }

  // `too_far` pixels are added after each glyph.
  [[nodiscard]] bool Passes(const BlendTable& blend, int too_far = 0) {
    return reference_.IsGdiLabel(text_, [&](const PixelBlock& block, ScreenPoint at) {
      for (const Glyph& glyph : glyphs_) {
        glyph.Draw(block, blend, at);
        at.x += glyph.Advance() + too_far;
      }
    });
  }

  const std::u16string text_ = u"P28094";
  SmoothReference reference_{kHeight, 6};
  BlendTable blend_;
  std::vector<Glyph> glyphs_;
};

TEST_F(LabelVerification, PassesWhatWasReadBack) { EXPECT_TRUE(Passes(blend_)); }

TEST_F(LabelVerification, RefusesAnotherWayToTheNextCharacter) {
  EXPECT_FALSE(Passes(blend_, 1));
  EXPECT_FALSE(Passes(blend_, -1));
}

TEST_F(LabelVerification, RefusesAnotherCharacter) {
  glyphs_[2] = glyphs_[1];
  EXPECT_FALSE(Passes(blend_));
}

// Each level by itself, however little it is off.
TEST_F(LabelVerification, RefusesAFalseBlend) {
  for (const Glyph& glyph : glyphs_) {
    for (const Glyph::Pixel& pixel : glyph.Pixels()) {
      BlendRow row = blend_.Rows()[pixel.levels[1]];
      for (std::uint8_t& value : row) value = static_cast<std::uint8_t>(value ^ 1);
      BlendTable wrong = blend_;
      wrong.Set(pixel.levels[1], row);
      ASSERT_FALSE(Passes(wrong)) << static_cast<int>(pixel.levels[1]);
    }
  }
}

}  // namespace
}  // namespace tavix::test
