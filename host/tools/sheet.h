// A sheet of paper laid on the plan, and its scale 1:N.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "host/survey/ground_geometry.h"

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

inline constexpr int kLargestScale = 1000000;

// The N of the scales that plans are drawn at, small ones first.
[[nodiscard]] std::span<const int> UsualScales();

// What a user typed: N, or 1:N, or 1/N, from 1 to kLargestScale. Commas and blanks may group the
// digits, which may be full-width ones, as a Japanese keyboard gives them.
[[nodiscard]] std::optional<int> ParseScale(std::string_view typed);

// What is wrong with a text that ParseScale refused.
[[nodiscard]] std::string NoScale(std::string_view typed);

// A scale that was set, and what the library reported right after.
struct GivenScale {
  int scale = 0;
  int reported = 0;
};

// The scale of the view by what the library reports now: what was set as long as the report is the
// same, else the report. Reports are truncated, and so may be one below what was set.
[[nodiscard]] int ScaleNow(int reported, const GivenScale& last);

}  // namespace fieldhost
