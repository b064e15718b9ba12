#include "view/scale_bar.h"

#include <algorithm>
#include <span>

namespace tavix {
namespace {

constexpr int kMeasure = 30;  // pixels

// What ground lengths above `above` metres are rounded to; the first row that fits counts.
struct RoundLength {
  double above;
  double value;
};
constexpr RoundLength kBars[] = {{600, 1000}, {300, 500}, {100, 200},  {50, 100},    {20, 50},
                                 {10, 20},    {5, 10},    {3, 5},      {1, 2},       {0.5, 1},
                                 {0.3, 0.5},  {0.1, 0.2}, {0.05, 0.1}, {0.03, 0.05}, {0.02, 0.02}};
constexpr double kSmallestBar = 0.01;
constexpr RoundLength kDatumSteps[] = {{500, 500}, {300, 300}, {150, 200},  {75, 100},
                                       {25, 50},   {15, 20},   {7.5, 10},   {3.5, 5},
                                       {1, 2},     {0.5, 1},   {0.25, 0.5}, {0.1, 0.2}};
constexpr double kSmallestDatumStep = 0.1;

double Round(double length, std::span<const RoundLength> table, double smallest) {
  const auto row = std::find_if(table.begin(), table.end(),
                                [=](const RoundLength& each) { return length > each.above; });
  return row == table.end() ? smallest : row->value;
}

}  // namespace

std::optional<ScaleBar> ScaleBarOf(const CViewState& view, bool vertical) {
  const double length = view.PixelsToLengthAxis(vertical, kMeasure);
  if (!(0.01 < length)) return std::nullopt;
  const double value = Round(length, kBars, kSmallestBar);
  return ScaleBar{value, view.LengthToPixelsAxis(vertical, value)};
}

double DatumStep(const CViewState& view) {
  return Round(view.PixelsToLength(kMeasure), kDatumSteps, kSmallestDatumStep);
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
