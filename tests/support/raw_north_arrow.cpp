#include "tests/support/raw_north_arrow.h"

#include <cmath>

#include "tests/support/raw_canvas.h"

namespace tavix::test {

void DrawRawNorthArrow(HDC dc, int degrees, int height) {
  double c = std::cos(degrees * 0.017453292519943295);
  double s = std::sin(degrees * 0.017453292519943295);
  if (degrees % 90 == 0) {  // exact, without rounding noise
    c = std::round(c);
    s = std::round(s);
  }
  if (c >= 0.999) return;
  const double bottom = height - 15;
  const auto at = [](double x, double y) {
    return POINT{static_cast<LONG>(x), static_cast<LONG>(y)};
  };
  const POINT arrow[] = {at(15 - 12 * s, bottom + 12 * c), at(15 + 12 * s, bottom - 12 * c),
                         at(15 - 3 * c + 5 * s, bottom - 3 * s - 5 * c)};
  const RawSelection pen(dc, ::CreatePen(PS_SOLID, 1, RGB(255, 0, 0)));
  ::Polyline(dc, arrow, 3);
}

}  // namespace tavix::test
