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

// Characters are read back from the system as labels need them. The first label with a new
// character is drawn both ways and compared: when they differ, all labels of the font are left to
// the system.
//
// `Hand` knows the kind of picture that is drawn in:
//
//     Block, Glyph, Sample                     what is drawn into, a character, the system's sample
//     Height(), kHighest                       of the font, in pixels; above, it is the system's
//     MakeSample(length)                       for labels of that many characters
//     Read(sample, character)                  the optional glyph of a character
//     Draw(block, at, glyph)                   with its cell's top left corner at `at`
//     Advance(glyph)                           pixels to the next character
template <class Hand>
class LabelAlphabet {
 public:
  explicit LabelAlphabet(const Hand& hand) : hand_(hand) {}
  LabelAlphabet(const LabelAlphabet&) = delete;
  LabelAlphabet& operator=(const LabelAlphabet&) = delete;

  // Draws a label with its top left corner at `at`. False, and nothing drawn, for a label that is
  // the system's business: a long or a large one, or one with a character that is not printable
  // ASCII, has a meaning of its own ('&') or cannot be had as a glyph.
  [[nodiscard]] bool Draw(const typename Hand::Block& block, ScreenPoint at, NameView text) {
    if (refused_) return false;
    if (!HasAll(text) && !Seek(text)) return false;
    DrawGlyphs(block, at, text);
    return true;
  }

 private:
  static constexpr char16_t kFirst = u' ';
  static constexpr char16_t kLast = u'~';
  static constexpr std::size_t kLongest = 32;  // characters

  // A glyph that was sought and may be missing.
  struct Entry {
    bool sought = false;
    std::optional<typename Hand::Glyph> glyph;
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

  [[nodiscard]] bool Seek(NameView text) {
    if (hand_.Height() > Hand::kHighest || text.size() > kLongest) return false;
    const auto none = [this](char16_t character) {
      if (!IsPrintable(character) || character == u'&') return true;
      return Of(character).sought && !Of(character).glyph;
    };
    if (std::any_of(text.begin(), text.end(), none)) return false;

    typename Hand::Sample single = hand_.MakeSample(1);
    typename Hand::Sample whole = hand_.MakeSample(static_cast<int>(text.size()));
    if (!single.IsMade() || !whole.IsMade()) return false;
    std::u16string readable;  // the others stay with the system
    for (const char16_t character : text) {
      if (Read(single, character)) readable += character;
    }
    refused_ =
        !whole.IsSystemsLabel(readable, [&](const typename Hand::Block& block, ScreenPoint at) {
          DrawGlyphs(block, at, readable);
        });
    return !refused_ && readable == text;
  }

  [[nodiscard]] bool Read(typename Hand::Sample& sample, char16_t character) {
    Entry& entry = Of(character);
    if (!entry.sought) {
      entry.sought = true;
      entry.glyph = hand_.Read(sample, character);
    }
    return entry.glyph.has_value();
  }

  void DrawGlyphs(const typename Hand::Block& block, ScreenPoint at, NameView text) const {
    for (const char16_t character : text) {
      const typename Hand::Glyph& glyph = *Of(character).glyph;
      hand_.Draw(block, at, glyph);
      at.x += hand_.Advance(glyph);
    }
  }

  // Of a printable character.
  [[nodiscard]] Entry& Of(char16_t character) {
    return entries_[static_cast<std::size_t>(character - kFirst)];
  }
  [[nodiscard]] const Entry& Of(char16_t character) const {
    return entries_[static_cast<std::size_t>(character - kFirst)];
  }

  Hand hand_;
  bool refused_ = false;
  std::array<Entry, kLast - kFirst + 1> entries_;
};

}  // namespace tavix
