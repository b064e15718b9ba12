#include "draw/dib/smooth_labels.h"

#include <bitset>
#include <utility>
#include <vector>

namespace tavix {
namespace {

// One pixel for each level of the glyph that is not known.
std::vector<Glyph::Pixel> UnknownLevels(const Glyph& glyph, const BlendTable& blend) {
  std::vector<Glyph::Pixel> pixels;
  std::bitset<256> found;
  for (const Glyph::Pixel& pixel : glyph.Pixels()) {
    if (blend.Knows(pixel.level) || found[pixel.level]) continue;
    found.set(pixel.level);
    pixels.push_back(pixel);
  }
  return pixels;
}

}  // namespace

std::optional<Glyph> SmoothReference::ReadGlyph(char16_t character) {
  constexpr std::uint32_t kWhite = 0x00FFFFFF;
  const int advance = AdvanceOf(character);
  if (advance < 0) return std::nullopt;
  Paper().Fill(kWhite);
  return Glyph::FromPicture(Drawn(character), Inside(), advance);
}

// The character is drawn once over each grey: what becomes of it is the row's value there.
void SmoothReference::ReadLevels(char16_t character, const Glyph& glyph, BlendTable& blend) {
  const std::vector<Glyph::Pixel> pixels = UnknownLevels(glyph, blend);
  if (pixels.empty()) return;
  std::vector<BlendRow> rows(pixels.size());
  for (std::uint32_t grey = 0; grey < 256; ++grey) {
    Paper().Fill(grey << 16 | grey << 8 | grey);
    const PixelBlock& shown = Drawn(character);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
      rows[i][grey] =
          static_cast<std::uint8_t>(*shown.At(Inside().x + pixels[i].x, Inside().y + pixels[i].y));
    }
  }
  for (std::size_t i = 0; i < pixels.size(); ++i) blend.Set(pixels[i].level, rows[i]);
}

std::optional<SmoothFont::Glyph> SmoothFont::Read(Reference& reference, char16_t character) const {
  std::optional<tavix::Glyph> glyph = reference.ReadGlyph(character);
  if (!glyph) return std::nullopt;
  reference.ReadLevels(character, *glyph, *blend_);
  std::optional<GlyphBlocks> blocks = GlyphBlocks::From(*glyph, *blend_);
  return Glyph{std::move(*glyph), std::move(blocks)};
}

void SmoothFont::Draw(const Block& block, ScreenPoint at, const Glyph& glyph) const {
  if (glyph.blocks && glyph.blocks->Fits(block, at)) {
    glyph.blocks->Draw(block, at);
  } else {
    glyph.glyph.Draw(block, *blend_, at);
  }
}

}  // namespace tavix
