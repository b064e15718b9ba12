// The system's text read back: what is right passes, what is not does not.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "draw/dib/label_sample.h"

namespace tavix::test {
namespace {

constexpr int kHeight = 10;

class LabelProof : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(sample_.IsMade());
    for (const char16_t character : text_) {
      const auto glyph = sample_.ReadGlyph(character);
      if (!glyph) GTEST_SKIP() << "the system smooths text in colours: labels are left to it";
      sample_.LearnLevels(character, *glyph, blend_);
      glyphs_.push_back(*glyph);
    }
  }

  // `too_far` pixels are added after each glyph.
  [[nodiscard]] bool Passes(const SmoothBlend& blend, int too_far = 0) {
    return sample_.IsSystemsLabel(text_, [&](const PixelBlock& block, ScreenPoint at) {
      for (const Glyph& glyph : glyphs_) {
        glyph.Draw(block, blend, at);
        at.x += glyph.Advance() + too_far;
      }
    });
  }

  const std::u16string text_ = u"P28094";
  LabelSample sample_{kHeight, 6};
  SmoothBlend blend_;
  std::vector<Glyph> glyphs_;
};

TEST_F(LabelProof, PassesWhatWasReadBack) { EXPECT_TRUE(Passes(blend_)); }

TEST_F(LabelProof, RefusesAnotherWayToTheNextCharacter) {
  EXPECT_FALSE(Passes(blend_, 1));
  EXPECT_FALSE(Passes(blend_, -1));
}

TEST_F(LabelProof, RefusesAnotherCharacter) {
  glyphs_[2] = glyphs_[1];
  EXPECT_FALSE(Passes(blend_));
}

// Each level by itself, however little it is off.
TEST_F(LabelProof, RefusesAFalseBlend) {
  for (const Glyph& glyph : glyphs_) {
    for (const Glyph::Pixel& pixel : glyph.Pixels()) {
      BlendRamp ramp = blend_.Ramps()[pixel.level];
      for (std::uint8_t& value : ramp) value = static_cast<std::uint8_t>(value ^ 1);
      SmoothBlend wrong = blend_;
      wrong.Learn(pixel.level, ramp);
      ASSERT_FALSE(Passes(wrong)) << static_cast<int>(pixel.level);
    }
  }
}

}  // namespace
}  // namespace tavix::test
