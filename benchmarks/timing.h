// How long pieces of work take: medians, and both sides in turn.
#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

namespace tavix {

template <class Work>
double Milliseconds(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
  return took.count();
}

inline double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values.empty() ? 0.0 : values[values.size() / 2];
}

// The median of some rounds, in milliseconds.
template <class Work>
double MedianMilliseconds(Work work, int rounds = 7) {
  std::vector<double> times;
  for (int round = 0; round < rounds; ++round) times.push_back(Milliseconds(work));
  return Median(times);
}

// Medians in milliseconds; the ratio is the median of the rounds' ratios, since a machine that does
// other work slows both sides of a round.
struct Comparison {
  double floor;
  double product;
  double ratio;
};

// Both sides one after the other, round by round; each returns what it took.
template <class Floor, class Product>
Comparison InTurn(int rounds, Floor floor, Product product) {
  std::vector<double> floors;
  std::vector<double> products;
  std::vector<double> ratios;
  for (int round = 0; round < rounds; ++round) {
    floors.push_back(floor());
    products.push_back(product());
    ratios.push_back(products.back() / floors.back());
  }
  return {Median(floors), Median(products), Median(ratios)};
}

}  // namespace tavix
