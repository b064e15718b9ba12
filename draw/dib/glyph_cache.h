// The labels of one font, drawn character by character.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "store/name_pool.h"
#include "view/coordinates.h"

namespace tavix {

// Glyphs are read back from GDI as labels need them. The first label with a new character is drawn
// both by GDI and from its glyphs and compared: when they differ, all labels of the font are left
// to GDI.
//
// `Font` knows the kind of bitmap that is drawn in:
//
//     Block, Glyph, Reference                  what is drawn into, a character, GDI's bitmap
//     Height(), kHighest                       of the font, in pixels; higher ones are left to GDI
//     MakeReference(length)                    for labels of that many characters
//     Read(reference, character)               the optional glyph of a character
//     Draw(block, at, glyph)                   with its cell's top left corner at `at`
//     Advance(glyph)                           pixels to the next character
template <class Font>
class GlyphCache {
 public:
  explicit GlyphCache(const Font& font) : font_(font) {}
  GlyphCache(const GlyphCache&) = delete;
  GlyphCache& operator=(const GlyphCache&) = delete;

  // Draws a label with its top left corner at `at`. False, and nothing drawn, for a label that is
  // left to GDI: a long or a high one, or one with a character that is not printable ASCII, has a
  // meaning of its own ('&') or has no glyph.
  [[nodiscard]] bool Draw(const typename Font::Block& block, ScreenPoint at, NameView text) {
    if (refused_) return false;
    if (!HasAll(text) && !Probe(text)) return false;
    DrawGlyphs(block, at, text);
    return true;
  }

 private:
  static constexpr char16_t kFirst = u' ';
  static constexpr char16_t kLast = u'~';
  static constexpr std::size_t kLongest = 32;  // characters

  // A glyph that may have been read back, and may be missing.
  struct Entry {
    bool probed = false;
    std::optional<typename Font::Glyph> glyph;
  };

  [[nodiscard]] static bool IsPrintable(char16_t character) {
    return character >= kFirst && character <= kLast;
  }

  [[nodiscard]] bool HasAll(NameView text) const {
    for (const char16_t character : text) {
      if (!IsPrintable(character) || !Of(character).glyph) return false;
    }
    return text.size() <= kLongest;
  }

  [[nodiscard]] bool Probe(NameView text) {
    if (font_.Height() > Font::kHighest || text.size() > kLongest) return false;
    const auto has_none = [this](char16_t character) {
      if (!IsPrintable(character) || character == u'&') return true;
      return Of(character).probed && !Of(character).glyph;
    };
    if (std::any_of(text.begin(), text.end(), has_none)) return false;

    typename Font::Reference single = font_.MakeReference(1);
    typename Font::Reference whole = font_.MakeReference(static_cast<int>(text.size()));
    if (!single.IsMade() || !whole.IsMade()) return false;
    std::u16string readable;  // the other characters stay with GDI
    for (const char16_t character : text) {
      if (Read(single, character)) readable += character;
    }
    refused_ = !whole.IsGdiLabel(readable, [&](const typename Font::Block& block, ScreenPoint at) {
      DrawGlyphs(block, at, readable);
    });
    return !refused_ && readable == text;
  }

  [[nodiscard]] bool Read(typename Font::Reference& reference, char16_t character) {
    Entry& entry = Of(character);
    if (!entry.probed) {
      entry.probed = true;
      entry.glyph = font_.Read(reference, character);
    }
    return entry.glyph.has_value();
  }

  void DrawGlyphs(const typename Font::Block& block, ScreenPoint at, NameView text) const {
    for (const char16_t character : text) {
      const typename Font::Glyph& glyph = *Of(character).glyph;
      font_.Draw(block, at, glyph);
      at.x += font_.Advance(glyph);
    }
  }

  // Of a printable character.
  [[nodiscard]] Entry& Of(char16_t character) {
    return entries_[static_cast<std::size_t>(character - kFirst)];
  }
  [[nodiscard]] const Entry& Of(char16_t character) const {
    return entries_[static_cast<std::size_t>(character - kFirst)];
  }

  Font font_;
  bool refused_ = false;
  std::array<Entry, kLast - kFirst + 1> entries_;
};

}  // namespace tavix
