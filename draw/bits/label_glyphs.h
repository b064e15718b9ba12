// The labels of one font, drawn from glyphs.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "draw/bits/glyph.h"
#include "draw/bits/glyph_blocks.h"
#include "draw/bits/smooth_blend.h"
#include "store/name_pool.h"

namespace tavix {

class LabelSample;

// Glyphs are read back from the system as labels need them. The first label with a new glyph is
// drawn both ways and compared: when they differ, all labels of the font are left to the system.
class LabelGlyphs {
 public:
  // A font of `height` pixels in a colour. `blend` is that colour's, is shared with other fonts and
  // outlives this.
  LabelGlyphs(int height, std::uint32_t color, SmoothBlend& blend)
      : height_(height), color_(color), blend_(blend) {}
  LabelGlyphs(const LabelGlyphs&) = delete;
  LabelGlyphs& operator=(const LabelGlyphs&) = delete;

  // Draws a label with its top left corner at `at`. False, and nothing drawn, for a label that is
  // the system's business: a long or a large one, or one with a character that is not printable
  // ASCII, has a meaning of its own ('&') or cannot be had as a glyph.
  [[nodiscard]] bool Draw(const PixelBlock& block, ScreenPoint at, NameView text);

  [[nodiscard]] int Height() const { return height_; }
  [[nodiscard]] std::uint32_t Color() const { return color_; }

 private:
  static constexpr char16_t kFirst = u' ';
  static constexpr char16_t kLast = u'~';

  // A glyph that was sought and may be missing.
  struct Entry {
    bool sought = false;
    std::optional<Glyph> glyph;
    std::optional<GlyphBlocks> blocks;
  };

  [[nodiscard]] bool HasAll(NameView text) const;
  [[nodiscard]] bool Seek(NameView text);
  [[nodiscard]] bool Read(LabelSample& sample, char16_t character);
  void DrawGlyphs(const PixelBlock& block, ScreenPoint at, NameView text) const;

  // Of a printable character.
  [[nodiscard]] Entry& Of(char16_t character) {
    return entries_[static_cast<std::size_t>(character - kFirst)];
  }
  [[nodiscard]] const Entry& Of(char16_t character) const {
    return entries_[static_cast<std::size_t>(character - kFirst)];
  }

  int height_;
  std::uint32_t color_;
  SmoothBlend& blend_;
  bool refused_ = false;
  std::array<Entry, kLast - kFirst + 1> entries_;
};

}  // namespace tavix
