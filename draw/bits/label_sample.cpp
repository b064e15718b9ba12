#include "draw/bits/label_sample.h"

#include <algorithm>
#include <vector>

#include "platform/wide_text.h"

namespace tavix {
namespace {

LegendStyle LabelStyle(int height) {
  LegendStyle style;
  style.prm2 = height;
  return style;
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

// Once over each grey: what becomes of it is the ramp's value there.
void LabelSample::LearnLevels(char16_t character, const Glyph& glyph, SmoothBlend& blend) {
  std::vector<Glyph::Pixel> unknown;
  for (const Glyph::Pixel& pixel : glyph.Pixels()) {
    const auto same = [&](const Glyph::Pixel& other) { return other.level == pixel.level; };
    if (!blend.Knows(pixel.level) && std::none_of(unknown.begin(), unknown.end(), same)) {
      unknown.push_back(pixel);
    }
  }
  if (unknown.empty()) return;
  std::vector<BlendRamp> ramps(unknown.size());
  for (std::uint32_t grey = 0; grey < 256; ++grey) {
    sample_.Fill(grey << 16 | grey << 8 | grey);
    plain_.Label(inside_, {&character, 1});
    const PixelBlock& shown = sample_.Pixels();
    for (std::size_t i = 0; i < unknown.size(); ++i) {
      ramps[i][grey] =
          static_cast<std::uint8_t>(*shown.At(inside_.x + unknown[i].x, inside_.y + unknown[i].y));
    }
  }
  for (std::size_t i = 0; i < unknown.size(); ++i) blend.Learn(unknown[i].level, ramps[i]);
}

}  // namespace tavix
