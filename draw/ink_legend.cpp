#include "draw/ink_legend.h"

namespace tavix {

LegendTable InkLegend(LegendTable legend) {
  constexpr std::int32_t kWhite = 0x00FFFFFF;
  constexpr std::int32_t kBlack = 0;
  legend.ForEachStyle([](LegendStyle& style) {
    if ((style.color & kWhite) != kWhite) style.color = kBlack;
  });
  return legend;
}

}  // namespace tavix
