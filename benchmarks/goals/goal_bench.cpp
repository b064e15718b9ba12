// Measures the goals of docs/performance.md through the exported calls, each beside the floor that
// it names, timed in turn in the same process; ./bench runs all of them.
//
//   goal_bench NAME      one of the names below; a line for each figure, with tabs
//   goal_bench list FILE reads a coordinate list (number,X,Y,Z,name) plainly and draws it
//   goal_bench nothing   starts and ends: what a process costs by itself
#include <array>
#include <cstdio>
#include <string_view>

#include "benchmarks/goals/goals.h"

namespace {

struct Measurement {
  std::string_view name;
  void (*run)();
};

constexpr std::array<Measurement, 16> kMeasurements{{
    {"whole", tavix::MeasureWholeViews},
    {"labels", tavix::MeasureLabels},
    {"pens", tavix::MeasurePens},
    {"zoomed", tavix::MeasureZoomedViews},
    {"points", tavix::MeasurePoints},
    {"picks", tavix::MeasurePicks},
    {"memory", tavix::MeasureMemory},
    {"lines", tavix::MeasureLines},
    {"figures", tavix::MeasureFigures},
    {"at-once", tavix::MeasureAtOnce},
    {"changes", tavix::MeasureChanges},
    {"paint", tavix::MeasurePaint},
    {"one-bit", tavix::MeasureOneBit},
    {"first", tavix::MeasureFirstRedraw},
    {"side", tavix::MeasureSideView},
    {"nothing", [] {}},
}};

}  // namespace

int main(int argc, char** argv) {
  const std::string_view name = argc > 1 ? argv[1] : "";
  if (name == "list" && argc > 2) {
    tavix::MeasureList(argv[2]);
    return 0;
  }
  for (const Measurement& measurement : kMeasurements) {
    if (measurement.name != name) continue;
    measurement.run();
    return 0;
  }
  std::puts("Which measurement? The first lines of goal_bench.cpp name them.");
  return 2;
}
