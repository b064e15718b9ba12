#include "draw/dib/label_glyphs.h"

namespace tavix {

std::optional<SmoothHand::Glyph> SmoothHand::Read(Sample& sample, char16_t character) const {
  std::optional<tavix::Glyph> glyph = sample.ReadGlyph(character);
  if (!glyph) return std::nullopt;
  sample.LearnLevels(character, *glyph, *blend_);
  std::optional<GlyphBlocks> blocks = GlyphBlocks::From(*glyph, *blend_);
  return Glyph{std::move(*glyph), std::move(blocks)};
}

void SmoothHand::Draw(const Block& block, ScreenPoint at, const Glyph& glyph) const {
  if (glyph.blocks && glyph.blocks->Fits(block, at)) {
    glyph.blocks->Draw(block, at);
  } else {
    glyph.glyph.Draw(block, *blend_, at);
  }
}

}  // namespace tavix
