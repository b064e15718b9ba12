// What a measurement comes to: one line each, which ./bench reads.
#pragma once

#include <string>

namespace tavix {

struct Figure {
  std::string goal;     // its number, "1b"
  std::string what;     // of the measurement, in a few words
  double value;         // the figure itself
  std::string unit;     // empty for a ratio
  double limit;         // the goal: the value is not to be above it
  std::string details;  // the times behind the figure
  long different = -1;  // pixels; -1 where no pictures are compared
};

// Prints the figure as one line with tabs.
void Print(const Figure& figure);

// "floor 12.3 ms, product 1.23 ms".
[[nodiscard]] std::string Times(double floor_ms, double product_ms);

// printf into a string.
[[nodiscard]] std::string Text(const char* format, ...) __attribute__((format(printf, 1, 2)));

}  // namespace tavix
