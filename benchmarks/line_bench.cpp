// Measures the line store, each beside its floor in the same run:
//
//   line_bench [many | star | find | walk]      all of them without an argument
//
//   enter many     100,000 lines among 32,000 keys, each looked up first, as the exported call does
//   enter a star   20,000 lines that share their smaller key
//   look up        lines of the first kind at random, half of them not there
//   walk           20,000 lines in the order of entry with both ends, as a redraw walks them again
// The floors: a hash table of key pairs beside a vector, and a vector of lines with the places of
// their ends. Times are per line, medians of several rounds.
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "benchmarks/timing.h"
#include "store/lin_db.h"
#include "store/point_list.h"

namespace {

using tavix::CLinDb;
using tavix::GroundPoint;
using tavix::Line;
using tavix::LineKeys;
using tavix::MedianMilliseconds;

constexpr int kKeys = 32000;
constexpr int kLines = 100000;
constexpr int kFewLines = 20000;

std::uint32_t Pair(LineKeys keys) {
  return static_cast<std::uint32_t>(static_cast<std::uint16_t>(keys.Smaller())) << 16 |
         static_cast<std::uint16_t>(keys.Larger());
}

std::vector<LineKeys> LinesAmong(int count, int keys, unsigned seed) {
  std::mt19937 random(seed);
  std::vector<LineKeys> lines;
  std::unordered_set<std::uint32_t> known;
  while (static_cast<int>(lines.size()) < count) {
    const auto below = [&] { return static_cast<int>(random() % static_cast<unsigned>(keys)); };
    const LineKeys line = LineKeys::Of(below(), below());
    if (known.insert(Pair(line)).second) lines.push_back(line);
  }
  return lines;
}

std::vector<LineKeys> Star(int count) {
  std::vector<LineKeys> lines;
  for (int i = 0; i < count; ++i) lines.push_back(LineKeys::Of(i + 1, 0));
  return lines;
}

std::vector<LineKeys> Chain(int count) {
  std::vector<LineKeys> lines;
  for (int i = 0; i < count; ++i) lines.push_back(LineKeys::Of(i, i + 1));
  return lines;
}

void EnterAll(CLinDb& store, const std::vector<LineKeys>& lines) {
  std::int32_t id = 0;
  for (const LineKeys keys : lines) {
    if (!store.Contains(keys)) store.Add(keys, 101, &id);
  }
}

void EnterFlat(const std::vector<LineKeys>& lines) {
  std::unordered_set<std::uint32_t> known;
  std::vector<Line> flat;
  for (const LineKeys keys : lines) {
    if (known.insert(Pair(keys)).second) {
      flat.push_back({static_cast<std::int32_t>(flat.size()) + 1, keys, 101});
    }
  }
}

void Report(const char* what, double floor_ms, double store_ms, std::size_t lines) {
  const double each = 1e6 / static_cast<double>(lines);
  std::printf("%-13s floor %6.1f ns   store %8.1f ns   ratio %.1f\n", what, floor_ms * each,
              store_ms * each, store_ms / floor_ms);
}

void MeasureEnter(const char* what, const std::vector<LineKeys>& lines) {
  const double floor_ms = MedianMilliseconds([&] { EnterFlat(lines); });
  const double store_ms = MedianMilliseconds([&] {
    CLinDb store(0);
    store.Open();
    EnterAll(store, lines);
    store.Close();
  });
  Report(what, floor_ms, store_ms, lines.size());
}

void MeasureFind() {
  CLinDb store(0);
  store.Open();
  const std::vector<LineKeys> lines = LinesAmong(kLines, kKeys, 1);
  EnterAll(store, lines);
  std::unordered_set<std::uint32_t> known;
  for (const LineKeys keys : lines) known.insert(Pair(keys));
  std::vector<LineKeys> asked = LinesAmong(kLines / 2, kKeys, 2);
  asked.insert(asked.end(), lines.begin(), lines.begin() + kLines / 2);
  std::shuffle(asked.begin(), asked.end(), std::mt19937(3));
  std::size_t flat_found = 0;
  std::size_t found = 0;
  const double floor_ms = MedianMilliseconds([&] {
    flat_found = 0;
    for (const LineKeys keys : asked) flat_found += known.count(Pair(keys));
  });
  const double store_ms = MedianMilliseconds([&] {
    found = 0;
    for (const LineKeys keys : asked) found += store.Find(keys) == 0 ? 1U : 0U;
  });
  Report("look up", floor_ms, store_ms, asked.size());
  if (found != flat_found) std::puts("NOT the same lines");
  store.Close();
}

constexpr double kAnywhere = std::numeric_limits<double>::infinity();
constexpr tavix::SegmentSieve kNothing{{{}, kAnywhere, kAnywhere}, {}};  // is held back

void MeasureWalk() {
  const std::vector<LineKeys> lines = Chain(kFewLines);
  CLinDb store(0);
  store.Open();
  EnterAll(store, lines);
  tavix::CPntList points;
  std::vector<GroundPoint> places;
  for (int key = 0; key <= kFewLines; ++key) {
    places.push_back({key * 1.5, key * -0.5});
    points.Add({key, key, u"P", places.back(), 1});
  }
  double flat_sum = 0.0;
  double sum = 0.0;
  const double floor_ms = MedianMilliseconds([&] {
    flat_sum = 0.0;
    for (const LineKeys keys : lines) {
      flat_sum += places[static_cast<std::size_t>(keys.a)].north;
      flat_sum += places[static_cast<std::size_t>(keys.b)].east;
    }
  });
  const double store_ms = MedianMilliseconds([&] {
    sum = 0.0;
    store.ForEachIn(points, kNothing, [&](std::int16_t, GroundPoint start, GroundPoint end) {
      sum += start.north;
      sum += end.east;
    });
  });
  Report("walk", floor_ms, store_ms, lines.size());
  if (sum != flat_sum) std::puts("NOT the same places");
  store.Close();
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view part = argc > 1 ? argv[1] : "";
  const auto wanted = [&](std::string_view name) { return part.empty() || part == name; };
  if (wanted("walk")) MeasureWalk();
  if (wanted("find")) MeasureFind();
  if (wanted("many")) MeasureEnter("enter many", LinesAmong(kLines, kKeys, 1));
  if (wanted("star")) MeasureEnter("enter a star", Star(kFewLines));
  return 0;
}
