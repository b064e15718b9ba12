// What the fuzzers share: values taken from any bytes, and promises that are held against them.
#pragma once

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <span>
#include <stdexcept>
#include <string_view>

#include "view/coordinates.h"

namespace tavix::fuzz {

// A promise that does not hold. Nobody catches it: it ends a fuzzer as a crash does, and fails the
// test that replays the input.
class BrokenPromise : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

inline void Require(bool holds, const char* promise) {
  if (!holds) throw BrokenPromise(promise);
}

// Takes values from the bytes of an input, in turn. Past their end it takes zeros.
class FuzzInput {
 public:
  FuzzInput(const std::uint8_t* data, std::size_t size) : rest_(data, size) {}

  [[nodiscard]] bool IsEmpty() const { return rest_.empty(); }

  template <class Value>
  Value Take() {
    std::array<std::uint8_t, sizeof(Value)> bytes{};
    const std::size_t count = std::min(bytes.size(), rest_.size());
    std::memcpy(bytes.data(), rest_.data(), count);
    rest_ = rest_.subspan(count);
    return std::bit_cast<Value>(bytes);
  }

  // 0 to `end` - 1; `end` is at most 256.
  unsigned Below(unsigned end) { return Take<std::uint8_t>() % end; }
  bool Coin() { return Below(2) == 1; }

  // A whole number: small, of any size, or at an end of its range.
  int Whole() {
    switch (Below(4)) {
      case 0:
        return Take<std::int8_t>();
      case 1:
        return Take<std::int16_t>();
      case 2:
        return Take<std::int32_t>();
      default: {
        using Limits = std::numeric_limits<int>;
        const int odd[] = {Limits::max(), Limits::min(), Limits::max() - 1, Limits::min() + 1, 0};
        return odd[Below(5)];
      }
    }
  }

  // A number as surveys have it, an odd one, or any bits: also infinite, or not a number.
  double Number() {
    switch (Below(4)) {
      case 0:
        return Take<std::int16_t>();
      case 1:
        return Take<std::int32_t>() / 1000.0;
      case 2: {
        using Limits = std::numeric_limits<double>;
        const double odd[] = {0.0,
                              -0.0,
                              1e-7,
                              1e15,
                              1e300,
                              -1e300,
                              Limits::infinity(),
                              -Limits::infinity(),
                              Limits::max(),
                              Limits::denorm_min(),
                              Limits::quiet_NaN()};
        return odd[Below(11)];
      }
      default:
        return Take<double>();
    }
  }
  // The same, and 0 in place of what is not finite.
  double FiniteNumber() {
    const double number = Number();
    return std::isfinite(number) ? number : 0.0;
  }

  GroundPoint Position() {
    const double north = Number();
    return {north, Number()};
  }
  GroundPoint FinitePosition() {
    const double north = FiniteNumber();
    return {north, FiniteNumber()};
  }

  // All bytes that are left, as text.
  [[nodiscard]] std::string_view Rest() const {
    return {reinterpret_cast<const char*>(rest_.data()), rest_.size()};
  }

 private:
  std::span<const std::uint8_t> rest_;
};

// To the last bit; two values that are not numbers are the same.
inline bool IsSame(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }
inline bool IsSame(GroundPoint a, GroundPoint b) {
  return IsSame(a.north, b.north) && IsSame(a.east, b.east);
}

inline bool IsFinite(GroundPoint at) { return std::isfinite(at.north) && std::isfinite(at.east); }

}  // namespace tavix::fuzz
