#include "view/in_view.h"

#include <algorithm>
#include <array>

namespace tavix {

bool IsPointInView(const CViewState& view, GroundPoint point) {
  ScreenPoint ignored;
  return view.CircleOnScreen(point, 0.0, ignored);
}

bool IsCircleInView(const CViewState& view, GroundPoint centre, double radius) {
  constexpr double kNoRadius = 0.00001;
  if (radius < kNoRadius) return IsPointInView(view, centre);
  const std::array<GroundPoint, 4> offsets{{{radius, 0}, {0, radius}, {-radius, 0}, {0, -radius}}};
  const double c = view.CosA();
  const double s = view.SinA();
  return std::all_of(offsets.begin(), offsets.end(), [&](GroundPoint d) {
    return IsPointInView(view, {centre.north + (d.north * c - d.east * s),
                                centre.east + (d.east * c + d.north * s)});
  });
}

}  // namespace tavix
