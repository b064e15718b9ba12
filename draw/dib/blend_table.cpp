#include "draw/dib/blend_table.h"

#include <algorithm>
#include <cstddef>

namespace tavix {
namespace {

bool Gives(std::uint16_t weight, const BlendRow& row) {
  for (std::size_t value = 0; value < row.size(); ++value) {
    if (row[value] != Weighted(static_cast<std::uint8_t>(value), weight)) return false;
  }
  return true;
}

}  // namespace

// What is left of white gives the weight but for the rounding.
std::optional<std::uint16_t> FindWeight(const BlendRow& row) {
  const int low = row[255] * 256;
  const int high = std::min(low + 511, int{kFullWeight});
  for (int weight = low; weight <= high; ++weight) {
    if (Gives(static_cast<std::uint16_t>(weight), row)) return static_cast<std::uint16_t>(weight);
  }
  return std::nullopt;
}

void BlendTable::Set(std::uint8_t level, const BlendRow& row) {
  if (rows_.empty()) rows_.resize(levels_.size());
  rows_[level] = row;
  levels_[level] = {true, FindWeight(row)};
}

}  // namespace tavix
