// The system's smoothed text, read back from its own drawing.
#pragma once

#include <optional>

#include "draw/dib/glyph.h"
#include "draw/dib/label_room.h"
#include "draw/dib/smooth_blend.h"
#include "draw/dib/system_sample.h"

namespace tavix {

// Reads characters of one font and colour.
class LabelSample : public LabelRoom<SystemSample, OwnSample> {
 public:
  LabelSample(int height, int length, std::uint32_t color = 0) : LabelRoom(height, length, color) {}

  // A character as the system draws it; none where it is not to be had, see Glyph.
  [[nodiscard]] std::optional<Glyph> ReadGlyph(char16_t character);

  // Teaches `blend` those levels of the character's glyph that it does not know.
  void LearnLevels(char16_t character, const Glyph& glyph, SmoothBlend& blend);
};

}  // namespace tavix
