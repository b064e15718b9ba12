// How smoothed text darkens what it is drawn over.
#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <vector>

namespace tavix {

// What the values 0..255 of a colour channel become under a text pixel.
using BlendRamp = std::array<std::uint8_t, 256>;

// A ramp for each level of smoothing. A level is named by what it makes of white: 0..255, and 255
// of a pixel that leaves white as it is.
class SmoothBlend {
 public:
  [[nodiscard]] bool Knows(std::uint8_t level) const { return known_[level]; }

  void Learn(std::uint8_t level, const BlendRamp& ramp) {
    if (ramps_.empty()) ramps_.resize(256);
    ramps_[level] = ramp;
    known_[level] = true;
  }

  // The ramps by level; those of levels that are not known mean nothing. Null while none is.
  [[nodiscard]] const BlendRamp* Ramps() const { return ramps_.data(); }

  void Forget() { known_.reset(); }

 private:
  std::vector<BlendRamp> ramps_;
  std::bitset<256> known_;
};

// `pixel` with each of its three colours taken through the ramp.
inline std::uint32_t Blended(const BlendRamp& ramp, std::uint32_t pixel) {
  const std::uint32_t red = ramp[pixel >> 16 & 0xFF];
  const std::uint32_t green = ramp[pixel >> 8 & 0xFF];
  const std::uint32_t blue = ramp[pixel & 0xFF];
  return red << 16 | green << 8 | blue;
}

}  // namespace tavix
