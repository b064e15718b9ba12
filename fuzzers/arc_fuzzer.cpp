// Arcs between any two points with any radius.

#include <algorithm>
#include <cmath>

#include "figure/curves/arc.h"
#include "fuzzers/fuzz_input.h"

namespace {

using namespace tavix;
using fuzz::IsSame;
using fuzz::Require;

// At lengths that surveys have, the points are where they should be.
void CheckOnCircle(const Polyline& arc, double radius) {
  const std::optional<GroundPoint> centre =
      TwoCircleCentre(arc.front(), radius, arc.back(), radius);
  Require(centre.has_value(), "an arc has a centre");
  const double chord =
      std::hypot(arc.back().north - arc.front().north, arc.back().east - arc.front().east);
  if (chord < 0.001 || std::fabs(radius) > 1e6) return;
  const double largest = std::max(std::fabs(centre->north), std::fabs(centre->east));
  if (largest > 1e7) return;  // metres
  Require(arc.size() <= 38, "half a circle at most");
  for (std::size_t i = 1; i + 1 < arc.size(); ++i) {
    const double distance = std::hypot(arc[i].north - centre->north, arc[i].east - centre->east);
    Require(std::fabs(distance - std::fabs(radius)) < 1e-6, "points lie on the circle");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::FuzzInput input(data, size);
  const GroundPoint start = input.Position();
  const GroundPoint end = input.Position();
  const double radius = input.Number();
  const Polyline arc = BuildArc(start, end, radius);
  if (arc.empty()) return 0;

  Require(arc.size() >= 2 && arc.size() <= 75, "a circle at most, a point every 5 degrees");
  Require(IsSame(arc.front(), radius < 0 ? end : start), "the first point is the given one");
  Require(IsSame(arc.back(), radius < 0 ? start : end), "so is the last");
  if (!fuzz::IsFinite(start) || !fuzz::IsFinite(end) || !std::isfinite(radius)) return 0;
  Require(std::all_of(arc.begin(), arc.end(), fuzz::IsFinite), "finite in, finite out");
  CheckOnCircle(arc, radius);
  return 0;
}
