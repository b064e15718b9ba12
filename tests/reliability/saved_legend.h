// The legend files that second_program saves in its lives without end.
#pragma once

#include <cstdio>
#include <string>

#include "tests/support/legend_bytes.h"

namespace tavix::test {

// Whether it is one of them, whole: of point legend 3 the size is the colour modulo 20, and all
// else is built in.
inline bool IsLegendOfSomeLife(const std::string& bytes) {
  constexpr std::size_t kThird = 3 * kLegendRecord;
  if (bytes.size() != kLegendFileSize) return false;
  int kind = 0;
  int size = 0;
  int height = 0;
  int label = 0;
  int width = 0;
  int color = 0;
  const std::string record = bytes.substr(kThird, kLegendRecord);
  const int read = std::sscanf(record.c_str(), "%d %d %d %d %d %d", &kind, &size, &height, &label,
                               &width, &color);
  std::string rest = bytes;
  rest.replace(kThird, kLegendRecord, BuiltInLegendBytes(), kThird, kLegendRecord);
  return read == 6 && size == color % 20 && rest == BuiltInLegendBytes();
}

}  // namespace tavix::test
