// A sheet of paper laid on the plan.
#pragma once

#include <span>
#include <string_view>

#include "host/survey/ground_position.h"

namespace fieldhost {

struct PaperSize {
  std::string_view name;
  int long_side;  // tenths of a millimetre
  int short_side;
};

// The ISO A and the JIS B sizes, larger ones first.
[[nodiscard]] std::span<const PaperSize> PaperSizes();

struct Sheet {
  PaperSize paper;
  bool landscape = false;
  int scale = 0;  // the N of 1:N, from 1

  // Tenths of a millimetre.
  [[nodiscard]] int Height() const { return landscape ? paper.short_side : paper.long_side; }
  [[nodiscard]] int Width() const { return landscape ? paper.long_side : paper.short_side; }
};

// A4 upright, 1:500.
[[nodiscard]] Sheet UsualSheet();

// The ground under the sheet's bottom left corner after its scale changed from 1:`old_scale`, with
// the middle of the sheet where it was. `degrees` is the view's angle, clockwise.
[[nodiscard]] GroundPosition OriginAboutSameMiddle(const GroundPosition& origin, const Sheet& sheet,
                                                   int old_scale, int degrees);

}  // namespace fieldhost
