#include "draw/bits/label_glyphs.h"

#include <algorithm>
#include <string>

#include "draw/bits/label_sample.h"

namespace tavix {
namespace {

constexpr std::size_t kLongest = 32;  // characters
constexpr int kHighest = 40;          // pixels; above, a label is drawn seldom

}  // namespace

bool LabelGlyphs::Draw(const PixelBlock& block, ScreenPoint at, NameView text) {
  if (refused_) return false;
  if (!HasAll(text) && !Seek(text)) return false;
  DrawGlyphs(block, at, text);
  return true;
}

bool LabelGlyphs::HasAll(NameView text) const {
  for (const char16_t character : text) {
    if (character < kFirst || character > kLast || !Of(character).glyph) return false;
  }
  return text.size() <= kLongest;
}

bool LabelGlyphs::Seek(NameView text) {
  if (height_ > kHighest || text.size() > kLongest) return false;
  const auto none = [this](char16_t character) {
    if (character < kFirst || character > kLast || character == u'&') return true;
    return Of(character).sought && !Of(character).glyph;
  };
  if (std::any_of(text.begin(), text.end(), none)) return false;

  LabelSample single(height_, 1, color_);
  LabelSample whole(height_, static_cast<int>(text.size()), color_);
  if (!single.IsMade() || !whole.IsMade()) return false;
  std::u16string readable;  // the others stay with the system
  for (const char16_t character : text) {
    if (Read(single, character)) readable += character;
  }
  refused_ = !whole.IsSystemsLabel(
      readable, [&](const PixelBlock& block, ScreenPoint at) { DrawGlyphs(block, at, readable); });
  return !refused_ && readable == text;
}

bool LabelGlyphs::Read(LabelSample& sample, char16_t character) {
  Entry& entry = Of(character);
  if (!entry.sought) {
    entry.sought = true;
    entry.glyph = sample.ReadGlyph(character);
    if (entry.glyph) {
      sample.LearnLevels(character, *entry.glyph, blend_);
      entry.blocks = GlyphBlocks::From(*entry.glyph, blend_);
    }
  }
  return entry.glyph.has_value();
}

void LabelGlyphs::DrawGlyphs(const PixelBlock& block, ScreenPoint at, NameView text) const {
  for (const char16_t character : text) {
    const Entry& entry = Of(character);
    if (entry.blocks && entry.blocks->Fits(block, at)) {
      entry.blocks->Draw(block, at);
    } else {
      entry.glyph->Draw(block, blend_, at);
    }
    at.x += entry.glyph->Advance();
  }
}

}  // namespace tavix
