#include "draw/dib/label_sample.h"

#include <bitset>
#include <vector>

namespace tavix {
namespace {

// One pixel for each level of the glyph that is not known.
std::vector<Glyph::Pixel> UnknownLevels(const Glyph& glyph, const SmoothBlend& blend) {
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

std::optional<Glyph> LabelSample::ReadGlyph(char16_t character) {
  constexpr std::uint32_t kWhite = 0x00FFFFFF;
  const int advance = AdvanceOf(character);
  if (advance < 0) return std::nullopt;
  Paper().Fill(kWhite);
  return Glyph::FromPicture(Drawn(character), Inside(), advance);
}

// The character is drawn once over each grey: what becomes of it is the ramp's value there.
void LabelSample::LearnLevels(char16_t character, const Glyph& glyph, SmoothBlend& blend) {
  const std::vector<Glyph::Pixel> pixels = UnknownLevels(glyph, blend);
  if (pixels.empty()) return;
  std::vector<BlendRamp> ramps(pixels.size());
  for (std::uint32_t grey = 0; grey < 256; ++grey) {
    Paper().Fill(grey << 16 | grey << 8 | grey);
    const PixelBlock& shown = Drawn(character);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
      ramps[i][grey] =
          static_cast<std::uint8_t>(*shown.At(Inside().x + pixels[i].x, Inside().y + pixels[i].y));
    }
  }
  for (std::size_t i = 0; i < pixels.size(); ++i) blend.Learn(pixels[i].level, ramps[i]);
}

}  // namespace tavix
