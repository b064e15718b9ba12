// How smoothed text darkens what it is drawn over.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace tavix {

// What the values 0..255 of a colour channel become under a text pixel.
using BlendRamp = std::array<std::uint8_t, 256>;

// What a text pixel leaves of a value when it leaves the same share of every value, rounded down.
// Shares count in 65281ths: kWholeShare leaves everything, 0 nothing.
constexpr std::uint16_t kWholeShare = 65281;

inline std::uint8_t LeftByShare(std::uint8_t value, std::uint16_t share) {
  const auto wide = static_cast<std::uint16_t>(value << 8 | value);
  const auto left = static_cast<std::uint16_t>((std::uint32_t{wide} * share) >> 16);
  return static_cast<std::uint8_t>(left >> 8);
}

// The share by which a ramp works exactly, for all of its values; none where there is none.
[[nodiscard]] std::optional<std::uint16_t> FindShare(const BlendRamp& ramp);

// A ramp for each level of smoothing. A level is named by what it makes of white: 0..255, and 255
// of a pixel that leaves white as it is.
class SmoothBlend {
 public:
  void Learn(std::uint8_t level, const BlendRamp& ramp);

  [[nodiscard]] bool Knows(std::uint8_t level) const { return levels_[level].known; }

  // The share of a level that works by one.
  [[nodiscard]] std::optional<std::uint16_t> Share(std::uint8_t level) const {
    return levels_[level].share;
  }

  // The ramps by level; those of levels that are not known mean nothing. Null while none is.
  [[nodiscard]] const BlendRamp* Ramps() const { return ramps_.data(); }

 private:
  struct Level {
    bool known = false;
    std::optional<std::uint16_t> share;
  };

  std::array<Level, 256> levels_;
  std::vector<BlendRamp> ramps_;
};

// `pixel` with each of its three colours taken through the ramp.
inline std::uint32_t Blended(const BlendRamp& ramp, std::uint32_t pixel) {
  const std::uint32_t red = ramp[pixel >> 16 & 0xFF];
  const std::uint32_t green = ramp[pixel >> 8 & 0xFF];
  const std::uint32_t blue = ramp[pixel & 0xFF];
  return red << 16 | green << 8 | blue;
}

}  // namespace tavix
