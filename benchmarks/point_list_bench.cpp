// Measures the point store:
//   Enter       entering n new points, keys in any order, per point
//   Find        a random key among n, per lookup
//   FindAbsent  a key that is not there, per lookup
//   FindNearest the point within some reach of a random place among n, per search; one metre holds
//               a hundredth of a point at 10^6
//   FloorWalk   the same by a walk over a plain row of points, up to the tenth candidate
// Linear in n means the time per item stays the same from 10^4 to 10^6 but for the cache.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <utility>
#include <vector>

#include "store/point_list.h"

namespace {

using tavix::CPntList;
using tavix::GroundPoint;

std::vector<std::int32_t> ShuffledKeys(std::int64_t count) {
  std::vector<std::int32_t> keys(static_cast<std::size_t>(count));
  for (std::size_t i = 0; i < keys.size(); ++i) keys[i] = static_cast<std::int32_t>(i) * 7 - 1000;
  std::shuffle(keys.begin(), keys.end(), std::mt19937(1));
  return keys;
}

// Looks each key up before it enters it, as the exported call does.
void EnterAll(CPntList& points, const std::vector<std::int32_t>& keys) {
  std::mt19937 random(2);
  std::uniform_real_distribution<double> place(0.0, 10000.0);
  for (const std::int32_t key : keys) {
    if (points.Find(key) != 0) points.Add({key, 1, u"P123456", {place(random), place(random)}, 2});
  }
}

void Enter(benchmark::State& state) {
  const auto keys = ShuffledKeys(state.range(0));
  for (auto _ : state) {
    CPntList points;
    EnterAll(points, keys);
    benchmark::DoNotOptimize(points.Count());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void Find(benchmark::State& state) {
  auto keys = ShuffledKeys(state.range(0));
  CPntList points;
  EnterAll(points, keys);
  std::shuffle(keys.begin(), keys.end(), std::mt19937(3));
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(points.Find(keys[i]));
    if (++i == keys.size()) i = 0;
  }
}

void FindAbsent(benchmark::State& state) {
  CPntList points;
  EnterAll(points, ShuffledKeys(state.range(0)));
  std::int32_t key = 1;
  for (auto _ : state) {
    benchmark::DoNotOptimize(points.Find(key));
    key += 7;
  }
}

std::vector<GroundPoint> SomePlaces() {
  std::mt19937 random(4);
  std::uniform_real_distribution<double> place(0.0, 10000.0);
  std::vector<GroundPoint> places(1000);
  for (GroundPoint& at : places) at = {place(random), place(random)};
  return places;
}

// Arguments: points, reach in centimetres.
void FindNearest(benchmark::State& state) {
  CPntList points;
  EnterAll(points, ShuffledKeys(state.range(0)));
  const double reach = static_cast<double>(state.range(1)) / 100.0;
  const auto places = SomePlaces();
  std::int32_t key = 0;
  for (int walk = 0; walk < 50; ++walk) points.FindNearest(0.0, {-1.0, -1.0}, &key);  // made ready
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(points.FindNearest(reach, places[i], &key));
    if (++i == places.size()) i = 0;
  }
}

void FloorWalk(benchmark::State& state) {
  CPntList points;
  EnterAll(points, ShuffledKeys(state.range(0)));
  std::vector<std::pair<GroundPoint, std::int32_t>> plain;
  points.ForEach([&](const tavix::Point& point) { plain.emplace_back(point.at, point.key); });
  const double reach = static_cast<double>(state.range(1)) / 100.0;
  const auto places = SomePlaces();
  std::size_t i = 0;
  for (auto _ : state) {
    int candidates = 0;
    double nearest = 0.0;
    std::int32_t key = 0;
    for (const auto& [place, its_key] : plain) {
      const double north = places[i].north - place.north;
      if (!(std::fabs(north) <= reach)) continue;
      const double east = places[i].east - place.east;
      if (!(std::fabs(east) <= reach)) continue;
      const double distance = north * north + east * east;
      if (candidates == 0 || distance < nearest) {
        nearest = distance;
        key = its_key;
      }
      if (++candidates == 10) break;
    }
    benchmark::DoNotOptimize(key);
    if (++i == places.size()) i = 0;
  }
}

void Densities(benchmark::internal::Benchmark* bench) {
  for (const int points : {10000, 1000000}) {
    for (const int reach : {10, 100, 1000, 3000, 10000, 30000, 100000, 1000000}) {
      bench->Args({points, reach});
    }
  }
  bench->Unit(benchmark::kMicrosecond);
}

BENCHMARK(Enter)->RangeMultiplier(10)->Range(10000, 1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(Find)->RangeMultiplier(10)->Range(10000, 1000000);
BENCHMARK(FindAbsent)->RangeMultiplier(10)->Range(10000, 1000000);
BENCHMARK(FindNearest)->Apply(Densities);
BENCHMARK(FloorWalk)->Apply(Densities);

}  // namespace

BENCHMARK_MAIN();
