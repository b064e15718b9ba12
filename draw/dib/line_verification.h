// Whether lines stepped by a rule are GDI's, pixel for pixel.
//
// The template serves every kind of bitmap, as those of verification.h do.
#pragma once

#include <cstdint>
#include <random>

#include "draw/dib/bresenham.h"
#include "draw/gdi_canvas.h"

namespace tavix {

// Draws the same lines by GDI and by a rule, over the same uneven picture. `color_of` gives the
// colour of each line by its number, one that the bitmap has a value for.
template <class Reference, class Trial>
class LinesBothWays {
 public:
  using ColorOf = std::int32_t (*)(int number);

  LinesBothWays(Reference& reference, const TieRule& rule, ColorOf color_of)
      : reference_(Uneven(reference)),
        rule_(rule),
        color_of_(color_of),
        gdi_(reference.Dc()),
        trial_(reference) {}

  void Draw(const ScreenSegment& segment, int width) {
    const std::int32_t color = color_of_(number_++);
    gdi_.UsePen({width, color});
    gdi_.Line(segment);
    StepLine(trial_.Pixels(), rule_, segment, trial_.Pixels().ValueOf(color).value());
  }

  [[nodiscard]] bool AreSame() const { return trial_.Equals(reference_); }

 private:
  static Reference& Uneven(Reference& reference) {
    reference.FillUnevenly();
    return reference;
  }

  Reference& reference_;
  const TieRule& rule_;
  ColorOf color_of_;
  int number_ = 1;
  GdiCanvas gdi_;
  Trial trial_;
};

// Every step of up to kReach pixels both ways, each line in a field of its own.
template <class Reference, class Trial>
bool ShortLinesAreSame(const TieRule& rule, std::int32_t (*color_of)(int)) {
  constexpr int kReach = 6;
  constexpr int kField = 2 * kReach + 1;
  Reference reference(kField * kField, kField * kField);
  if (!reference.IsMade()) return false;
  LinesBothWays<Reference, Trial> both(reference, rule, color_of);
  for (int dy = -kReach; dy <= kReach; ++dy) {
    for (int dx = -kReach; dx <= kReach; ++dx) {
      const ScreenPoint start{(dx + kReach) * kField + kReach, (dy + kReach) * kField + kReach};
      both.Draw({start, {start.x + dx, start.y + dy}}, 1);
    }
  }
  return both.AreSame();
}

// Long lines, most of which the picture's edges cut.
template <class Reference, class Trial>
bool LongLinesAreSame(const TieRule& rule, std::int32_t (*color_of)(int)) {
  constexpr int kWidth = 240;
  constexpr int kHeight = 160;
  constexpr int kOutside = 60;
  constexpr int kLines = 100;
  Reference reference(kWidth, kHeight);
  if (!reference.IsMade()) return false;
  LinesBothWays<Reference, Trial> both(reference, rule, color_of);
  std::minstd_rand random;
  const auto between = [&](int low, int high) {
    return low + static_cast<int>(random() % static_cast<unsigned>(high - low));
  };
  for (int line = 0; line < kLines; ++line) {
    const int outside = line % 2 == 0 ? 1 : kOutside;
    const auto place = [&] {
      return ScreenPoint{between(-outside, kWidth + outside), between(-outside, kHeight + outside)};
    };
    const ScreenPoint start = place();
    both.Draw({start, place()}, line % 4 < 2 ? 0 : 1);
  }
  return both.AreSame();
}

}  // namespace tavix
