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

// Where a level shows.
struct LevelPlace {
  std::uint8_t level;
  ScreenPoint at;
};

// One place for each level that is not known, of glyphs drawn side by side from `at` on.
std::vector<LevelPlace> UnknownLevels(std::span<const Glyph* const> glyphs, ScreenPoint at,
                                      const SmoothBlend& blend) {
  std::vector<LevelPlace> places;
  std::bitset<256> found;
  for (const Glyph* glyph : glyphs) {
    for (const Glyph::Pixel& pixel : glyph->Pixels()) {
      if (blend.Knows(pixel.level) || found[pixel.level]) continue;
      found.set(pixel.level);
      places.push_back({pixel.level, {at.x + pixel.x, at.y + pixel.y}});
    }
    at.x += glyph->Advance();
  }
  return places;
}

}  // namespace

// A character is seldom wider than the font is high; a label that is cut is proved by what shows.
LabelSample::LabelSample(int height, int length)
    : inside_{height, height},
      right_(height * (length + 2)),
      sample_(right_, height * 3),
      plain_(sample_.Dc()) {
  plain_.UsePointStyle(LabelStyle(height));
}

std::optional<Glyph> LabelSample::ReadGlyph(char16_t character) {
  constexpr std::uint32_t kWhite = 0x00FFFFFF;
  sample_.Fill(kWhite);
  plain_.Label(inside_, {&character, 1});
  const int advance = sample_.Dc().GetTextExtent(AsWide(&character), 1).cx;
  return Glyph::FromPicture(sample_.Pixels(), inside_, advance);
}

// The text is drawn once over each grey: what becomes of it is the ramp's value there.
void LabelSample::LearnLevels(NameView text, std::span<const Glyph* const> glyphs,
                              SmoothBlend& blend) {
  const std::vector<LevelPlace> places = UnknownLevels(glyphs, inside_, blend);
  if (places.empty()) return;
  std::vector<BlendRamp> ramps(places.size());
  for (std::uint32_t grey = 0; grey < 256; ++grey) {
    sample_.Fill(grey << 16 | grey << 8 | grey);
    plain_.Label(inside_, text);
    const PixelBlock& shown = sample_.Pixels();
    for (std::size_t i = 0; i < places.size(); ++i) {
      ramps[i][grey] = static_cast<std::uint8_t>(*shown.At(places[i].at.x, places[i].at.y));
    }
  }
  for (std::size_t i = 0; i < places.size(); ++i) blend.Learn(places[i].level, ramps[i]);
}

}  // namespace tavix
