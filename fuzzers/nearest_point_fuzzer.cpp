// Points added, moved and removed in any order: the nearest one is that of a plain scan.

#include "fuzzers/fuzz_input.h"
#include "tests/store/points_twice.h"

namespace {

using namespace tavix;
using fuzz::FuzzInput;

constexpr std::size_t kMostPoints = 2000;

void AddRow(PointsTwice& points, std::int32_t& key, FuzzInput& input) {
  GroundPoint at = input.Position();
  const GroundPoint step = input.Position();
  const unsigned count = 4 * input.Take<std::uint8_t>();
  for (unsigned i = 0; i < count && points.Count() < kMostPoints; ++i) {
    points.Add(++key, at);
    at = {at.north + step.north, at.east + step.east};
  }
}

void CheckNearest(const PointsTwice& points, FuzzInput& input) {
  const double tolerance = input.Number();
  const GroundPoint at = input.Position();
  // The index is built once scans have cost more than building it.
  for (unsigned i = 1 + input.Below(64); i > 0; --i) {
    fuzz::Require(points.Found(tolerance, at) == points.FoundByScan(tolerance, at),
                  "the nearest point is that of a scan");
  }
  fuzz::Require(points.HasSameInArea({at, tolerance, tolerance * 0.5}),
                "the points of an area come in order, and none is left out");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  PointsTwice points;
  std::int32_t key = 0;
  for (int steps = 0; steps < 100 && !input.IsEmpty(); ++steps) {
    const unsigned choice = input.Below(6);
    const std::size_t which = input.Take<std::uint16_t>();
    if (choice < 2) {
      CheckNearest(points, input);
    } else if (choice == 2 || points.Count() == 0) {
      AddRow(points, key, input);
    } else if (choice == 3) {
      points.Move(which % points.Count(), input.Position());
    } else if (choice == 4) {
      for (unsigned left = input.Take<std::uint8_t>(); left > 0 && points.Count() > 0; --left) {
        points.Remove(which % points.Count());
      }
    } else {
      points.Add(++key, input.Position());
    }
  }
  CheckNearest(points, input);
  return 0;
}
