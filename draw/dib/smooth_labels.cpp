#include "draw/dib/smooth_labels.h"

#include <bitset>
#include <utility>
#include <vector>

namespace tavix {
namespace {

// A pixel of a glyph in one of its channels.
struct Sample {
  ScreenPoint at;
  std::uint32_t shift;  // of the channel in a pixel
  std::uint8_t level;
};

// One sample for each level of the glyph that is not known.
std::vector<Sample> UnknownLevels(const Glyph& glyph, const BlendTable& blend) {
  std::vector<Sample> samples;
  std::bitset<256> found;
  for (const Glyph::Pixel& pixel : glyph.Pixels()) {
    std::uint32_t shift = 24;
    for (const std::uint8_t level : pixel.levels) {
      shift -= 8;
      if (blend.Knows(level) || found[level]) continue;
      found.set(level);
      samples.push_back({{pixel.x, pixel.y}, shift, level});
    }
  }
  return samples;
}

}  // namespace

std::optional<Glyph> SmoothReference::ReadGlyph(const Letter& letter) {
  constexpr std::uint32_t kWhite = 0x00FFFFFF;
  constexpr std::uint32_t kBlack = 0;
  const int advance = AdvanceOf(letter);
  if (advance < 0) return std::nullopt;
  Paper().Fill(kWhite);
  UseTextColor(kBlack);
  std::optional<Glyph> glyph = Glyph::FromPicture(Drawn(letter), Inside(), advance);
  UseTextColor(color_);
  return glyph;
}

// The character is drawn once over each grey: what becomes of it is the row's value there.
std::vector<std::uint8_t> SmoothReference::ReadLevels(const Letter& letter, const Glyph& glyph,
                                                      BlendTable& blend) {
  const std::vector<Sample> samples = UnknownLevels(glyph, blend);
  if (samples.empty()) return {};
  std::vector<BlendRow> rows(samples.size());
  for (std::uint32_t grey = 0; grey < 256; ++grey) {
    Paper().Fill(grey << 16 | grey << 8 | grey);
    const PixelBlock& shown = Drawn(letter);
    for (std::size_t i = 0; i < samples.size(); ++i) {
      const auto& [at, shift, level] = samples[i];
      rows[i][grey] =
          static_cast<std::uint8_t>(*shown.At(Inside().x + at.x, Inside().y + at.y) >> shift);
    }
  }
  std::vector<std::uint8_t> levels;
  for (std::size_t i = 0; i < samples.size(); ++i) {
    blend.Set(samples[i].level, rows[i]);
    levels.push_back(samples[i].level);
  }
  return levels;
}

std::optional<SmoothFont::Glyph> SmoothFont::Read(Reference& reference,
                                                  const Letter& letter) const {
  std::optional<tavix::Glyph> glyph = reference.ReadGlyph(letter);
  if (!glyph) return std::nullopt;
  const std::vector<std::uint8_t> added = reference.ReadLevels(letter, *glyph, *blend_);
  const auto draw = [&](const PixelBlock& block, ScreenPoint at) {
    glyph->Draw(block, *blend_, at);
  };
  // Other letters will use the levels too. Where GDI makes one picture of two that lie over each
  // other, as of a surrogate pair without a glyph, they are not levels of one blend.
  if (!added.empty() && !reference.IsGdiLabel(letter.Spelled(), draw)) {
    for (const std::uint8_t level : added) blend_->Forget(level);
    return std::nullopt;
  }
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
