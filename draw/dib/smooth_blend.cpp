#include "draw/dib/smooth_blend.h"

#include <algorithm>
#include <cstddef>

namespace tavix {
namespace {

bool WorksBy(const BlendRamp& ramp, std::uint16_t share) {
  for (std::size_t value = 0; value < ramp.size(); ++value) {
    if (ramp[value] != LeftByShare(static_cast<std::uint8_t>(value), share)) return false;
  }
  return true;
}

}  // namespace

// What is left of white tells the share but for the rounding.
std::optional<std::uint16_t> FindShare(const BlendRamp& ramp) {
  const int low = ramp[255] * 256;
  const int high = std::min(low + 511, int{kWholeShare});
  for (int share = low; share <= high; ++share) {
    if (WorksBy(ramp, static_cast<std::uint16_t>(share))) return static_cast<std::uint16_t>(share);
  }
  return std::nullopt;
}

void SmoothBlend::Learn(std::uint8_t level, const BlendRamp& ramp) {
  if (ramps_.empty()) ramps_.resize(levels_.size());
  ramps_[level] = ramp;
  levels_[level] = {true, FindShare(ramp)};
}

}  // namespace tavix
