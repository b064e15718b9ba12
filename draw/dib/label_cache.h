// The labels of many fonts, kept from one redraw to the next.
#pragma once

#include <cstddef>

#include "draw/dib/bounded_cache.h"
#include "draw/dib/font_identity.h"
#include "draw/dib/glyph_cache.h"

namespace tavix {

// The glyphs of each font that labels are drawn with, as long as GDI takes the same font. `Font` is
// that of a GlyphCache; `Key` names one, its height and what else it depends on.
template <class Key, class Font>
class LabelCache {
 public:
  LabelCache() = default;
  LabelCache(const LabelCache&) = delete;
  LabelCache& operator=(const LabelCache&) = delete;

  // To be called before a redraw. What the cache has given before is no longer valid.
  void BeginRedraw() { fonts_.BeginRedraw(glyph_memory_.IsSpent()); }

  // Null when there are very many others; valid until the next redraw or Clear.
  [[nodiscard]] GlyphCache<Font>* Get(const Key& key, const Font& font) {
    Cached* cached = fonts_.Get(key, font, glyph_memory_);
    if (cached && cached->checked_in != fonts_.Redraws()) {
      if (cached->identity != FontIdentity::OfLabels(font.Height())) {
        fonts_.Remove(key);
        cached = fonts_.Get(key, font, glyph_memory_);
      }
      cached->checked_in = fonts_.Redraws();
    }
    return cached ? &cached->labels : nullptr;
  }

  void Clear() { fonts_.Clear(); }

 private:
  // Some ten thousand kanji of a usual height.
  static constexpr std::size_t kMostGlyphBytes = std::size_t{16} << 20;

  struct Cached {
    Cached(const Font& font, MemoryBudget& glyph_memory)
        : labels(font, glyph_memory), identity(FontIdentity::OfLabels(font.Height())) {}

    GlyphCache<Font> labels;
    FontIdentity identity;
    std::size_t checked_in = 0;  // the redraw that last compared the identity
  };

  MemoryBudget glyph_memory_{kMostGlyphBytes};
  BoundedCache<Key, Cached, kMostFonts> fonts_;
};

}  // namespace tavix
