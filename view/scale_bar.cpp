#include "view/scale_bar.h"

#include <algorithm>
#include <iterator>

#include "view/truncate.h"

namespace tavix {
namespace {

// A ground length above `above` metres gets the bar `value`; the first row that fits counts.
struct Rung {
  double above;
  double value;
};
constexpr Rung kLadder[] = {{600, 1000}, {300, 500}, {100, 200},  {50, 100},    {20, 50},
                            {10, 20},    {5, 10},    {3, 5},      {1, 2},       {0.5, 1},
                            {0.3, 0.5},  {0.1, 0.2}, {0.05, 0.1}, {0.03, 0.05}, {0.02, 0.02}};
constexpr double kSmallestBar = 0.01;

}  // namespace

std::optional<ScaleBar> ScaleBarOf(const CViewState& view, bool vertical) {
  constexpr int kMeasure = 30;  // pixels
  const double length = view.PixelsToLengthAxis(vertical, kMeasure);
  if (!(0.01 < length)) return std::nullopt;
  const auto* rung = std::find_if(std::begin(kLadder), std::end(kLadder),
                                  [=](const Rung& each) { return length > each.above; });
  const double value = rung == std::end(kLadder) ? kSmallestBar : rung->value;
  return ScaleBar{value, view.LengthToPixelsAxis(vertical, value)};
}

bool ShowsNorthArrow(const CViewState& view) { return view.CosA() < 0.999; }

std::array<ScreenPoint, 3> NorthArrowOf(const CViewState& view) {
  int width = 0;
  int height = 0;
  view.GetScreenSize(&width, &height);
  const double s = view.SinA();
  const double c = view.CosA();
  const auto at = [](double x, double y) {
    return ScreenPoint{TruncateToInt(x), TruncateToInt(y)};
  };
  return {at(15 - 12 * s, height + 12 * c - 15), at(15 + 12 * s, height - 12 * c - 15),
          at(15 - (3 * c - 5 * s), height - 3 * s - 5 * c - 15)};
}

}  // namespace tavix
