#include "draw/bits/label_sample.h"

#include <bitset>
#include <vector>

#include "platform/wide_text.h"

namespace tavix {
namespace {

LegendStyle LabelStyle(int height) {
  LegendStyle style;
  style.prm2 = height;
  return style;
}

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

LabelSample::LabelSample(int height, int length, std::uint32_t color)
    : widest_(height * 2),
      inside_{height, height},
      right_(height * 2 + widest_ * length),
      sample_(right_, height * 3),
      plain_(sample_.Dc()) {
  plain_.UsePointStyle(LabelStyle(height));
  plain_.UseTextColor(color);
}

std::optional<Glyph> LabelSample::ReadGlyph(char16_t character) {
  constexpr std::uint32_t kWhite = 0x00FFFFFF;
  const int advance = sample_.Dc().GetTextExtent(AsWide(&character), 1).cx;
  if (advance > widest_) return std::nullopt;
  sample_.Fill(kWhite);
  plain_.Label(inside_, {&character, 1});
  return Glyph::FromPicture(sample_.Pixels(), inside_, advance);
}

// The character is drawn once over each grey: what becomes of it is the ramp's value there.
void LabelSample::LearnLevels(char16_t character, const Glyph& glyph, SmoothBlend& blend) {
  const std::vector<Glyph::Pixel> pixels = UnknownLevels(glyph, blend);
  if (pixels.empty()) return;
  std::vector<BlendRamp> ramps(pixels.size());
  for (std::uint32_t grey = 0; grey < 256; ++grey) {
    sample_.Fill(grey << 16 | grey << 8 | grey);
    plain_.Label(inside_, {&character, 1});
    const PixelBlock& shown = sample_.Pixels();
    for (std::size_t i = 0; i < pixels.size(); ++i) {
      ramps[i][grey] =
          static_cast<std::uint8_t>(*shown.At(inside_.x + pixels[i].x, inside_.y + pixels[i].y));
    }
  }
  for (std::size_t i = 0; i < pixels.size(); ++i) blend.Learn(pixels[i].level, ramps[i]);
}

}  // namespace tavix
