// Measures the point store:
//   Enter       entering n new points, keys in any order, per point
//   Find        a random key among n, per lookup
//   FindAbsent  a key that is not there, per lookup
//   FindNearest the point within ten metres of a random place among n, per search
// Linear in n means the time per item stays the same from 10^4 to 10^6 but for the cache.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <vector>

#include "store/point_list.h"

namespace {

using tavix::CPntList;

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
    CPntList points(0);
    EnterAll(points, keys);
    benchmark::DoNotOptimize(points.Count());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void Find(benchmark::State& state) {
  auto keys = ShuffledKeys(state.range(0));
  CPntList points(0);
  EnterAll(points, keys);
  std::shuffle(keys.begin(), keys.end(), std::mt19937(3));
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(points.Find(keys[i]));
    if (++i == keys.size()) i = 0;
  }
}

void FindAbsent(benchmark::State& state) {
  CPntList points(0);
  EnterAll(points, ShuffledKeys(state.range(0)));
  std::int32_t key = 1;
  for (auto _ : state) {
    benchmark::DoNotOptimize(points.Find(key));
    key += 7;
  }
}

void FindNearest(benchmark::State& state) {
  CPntList points(0);
  EnterAll(points, ShuffledKeys(state.range(0)));
  std::mt19937 random(4);
  std::uniform_real_distribution<double> place(0.0, 10000.0);
  for (auto _ : state) {
    std::int32_t key = 0;
    benchmark::DoNotOptimize(points.FindNearest(10.0, {place(random), place(random)}, &key));
  }
}

BENCHMARK(Enter)->RangeMultiplier(10)->Range(10000, 1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(Find)->RangeMultiplier(10)->Range(10000, 1000000);
BENCHMARK(FindAbsent)->RangeMultiplier(10)->Range(10000, 1000000);
BENCHMARK(FindNearest)->RangeMultiplier(10)->Range(10000, 1000000)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
