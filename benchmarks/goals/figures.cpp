#include "benchmarks/goals/figures.h"

#include <array>
#include <cstdarg>
#include <cstdio>

namespace tavix {

void Print(const Figure& figure) {
  std::printf("figure\t%s\t%s\t%.6g\t%s\t%.6g\t%s\t%ld\n", figure.goal.c_str(), figure.what.c_str(),
              figure.value, figure.unit.c_str(), figure.limit, figure.details.c_str(),
              figure.different);
  std::fflush(stdout);
}

std::string Times(double floor_ms, double product_ms) {
  return Text("floor %.3g ms, product %.3g ms", floor_ms, product_ms);
}

std::string Text(const char* format, ...) {
  std::array<char, 300> text{};
  va_list values;
  va_start(values, format);
  std::vsnprintf(text.data(), text.size(), format, values);
  va_end(values);
  return text.data();
}

}  // namespace tavix
