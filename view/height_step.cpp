#include "view/height_step.h"

#include <algorithm>
#include <iterator>

namespace tavix {

double HeightStep(double length_of_30_pixels) {
  struct Rung {
    double above;
    double step;
  };
  static constexpr Rung kLadder[] = {{500, 500}, {300, 300}, {150, 200},  {75, 100},
                                     {25, 50},   {15, 20},   {7.5, 10},   {3.5, 5},
                                     {1, 2},     {0.5, 1},   {0.25, 0.5}, {0.1, 0.2}};
  constexpr double kSmallest = 0.1;
  const auto* rung = std::find_if(std::begin(kLadder), std::end(kLadder), [=](const Rung& each) {
    return length_of_30_pixels > each.above;
  });
  return rung == std::end(kLadder) ? kSmallest : rung->step;
}

}  // namespace tavix
