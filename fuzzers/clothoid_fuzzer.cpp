// Clothoids between any two points with any radii and parameter.

#include <algorithm>
#include <cmath>

#include "figure/curves/clothoid.h"
#include "fuzzers/fuzz_input.h"

namespace {

using namespace tavix;
using fuzz::IsSame;
using fuzz::Require;

// Ten million points are allowed, and take too long here.
bool TakesLong(double radius, double parameter) {
  constexpr double kMostRadians = 100.0;
  return parameter * parameter > kMostRadians * 2 * radius * radius;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::FuzzInput input(data, size);
  const GroundPoint start = input.Position();
  const GroundPoint end = input.Position();
  const double from_radius = input.Number();
  const double parameter = input.Number();
  const double to_radius = input.Number();
  const bool long_one = (from_radius != 0 && TakesLong(from_radius, parameter)) ||
                        (to_radius != 0 && TakesLong(to_radius, parameter));
  if (long_one) return 0;

  const Polyline curve = BuildClothoid(start, end, from_radius, parameter, to_radius);
  const bool finite = fuzz::IsFinite(start) && fuzz::IsFinite(end) && std::isfinite(from_radius) &&
                      std::isfinite(parameter) && std::isfinite(to_radius);
  Require(finite || curve.empty(), "no curve where a number is not finite");
  if (curve.empty()) return 0;
  Require(curve.size() >= 2, "a curve has two ends");
  Require(std::all_of(curve.begin(), curve.end(), fuzz::IsFinite), "all points are finite");
  const bool forward = IsSame(curve.front(), start) && IsSame(curve.back(), end);
  const bool back = IsSame(curve.front(), end) && IsSame(curve.back(), start);
  Require(forward || back, "the ends are the given ones");
  Require(forward || std::fabs(to_radius) <= std::fabs(from_radius) ||
              std::fabs(from_radius * to_radius) < 1e-7,
          "built from its end only where that is straight");
  return 0;
}
