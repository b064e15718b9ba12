// Arguments as hosts give them: mostly ordinary, now and then odd, sometimes hostile.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace tavix::storm {

// The same seed gives the same values, whatever the compiler's distributions are.
class Chance {
 public:
  explicit Chance(std::uint64_t seed) : random_(seed) {}

  // A whole number from `low` to `high`, both included.
  int Between(int low, int high);
  bool OneIn(int n) { return Between(1, n) == 1; }
  // From 0.0 up to 1.0.
  double Part();

  template <class T>
  const T& AnyOf(const std::vector<T>& values) {
    return values[static_cast<std::size_t>(Between(0, static_cast<int>(values.size()) - 1))];
  }

  // A key of a point: few enough to meet again, and the borders of 16 and 32 bits.
  int Key();
  // A coordinate in metres; hostile ones are huge, tiny or not finite.
  double Coordinate();
  // A length in metres, with the signs and zeros of coordinates.
  double Length();
  // Any number that a call takes as `int`.
  int Number();
  std::int16_t Short() { return static_cast<std::int16_t>(Number()); }
  // A flag: any byte.
  std::uint8_t Flag();
  // A legend number, mostly of an entry that there is.
  std::int16_t Legend();
  // A name: Latin, Japanese, with prefixes, unpaired surrogates, long ones.
  std::wstring Name();

 private:
  std::mt19937_64 random_;
};

}  // namespace tavix::storm
