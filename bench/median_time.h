// How long a piece of work takes, for the programs that time both sides in one run.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <vector>

namespace tavix {

// The median of some rounds, in milliseconds.
template <class Work>
double MedianMilliseconds(Work work) {
  constexpr std::size_t kRounds = 7;
  std::vector<double> times;
  for (std::size_t round = 0; round < kRounds; ++round) {
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    times.push_back(took.count());
  }
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

}  // namespace tavix
