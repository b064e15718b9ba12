// Point keys as a line record holds them.
#pragma once

#include <cstdint>

namespace tavix {

// A line's two ends. Compatibility: the record has room for 16 bits of a key, so a key beyond that
// range stands for the one with the same low 16 bits, which is also what a redraw looks up.
struct LineKeys {
  std::int16_t a = 0;
  std::int16_t b = 0;

  [[nodiscard]] static LineKeys Of(int a, int b) {
    return {static_cast<std::int16_t>(a), static_cast<std::int16_t>(b)};
  }
  [[nodiscard]] std::int16_t Smaller() const { return a < b ? a : b; }
  [[nodiscard]] std::int16_t Larger() const { return a < b ? b : a; }
  [[nodiscard]] bool LargerFirst() const { return b < a; }
};

}  // namespace tavix
