// Sizes of pictures in pixels, and resolutions in dots an inch.
#pragma once

#include <optional>
#include <string_view>

namespace fieldhost {

struct PictureSize {
  static constexpr int kSmallest = 100;
  static constexpr int kLargest = 8192;

  int width = 0;
  int height = 0;

  // Both sides lie within the limits.
  [[nodiscard]] bool IsAllowed() const;
};

// Where no size is asked for and the screen is larger.
inline constexpr PictureSize kUsualSize{480, 600};

// "240x320"; nothing for any other text and for sides beyond the limits.
[[nodiscard]] std::optional<PictureSize> PictureSizeOf(std::string_view text);

// How many dots an inch a picture has on paper.
inline constexpr int kLowestResolution = 30;
inline constexpr int kHighestResolution = 2400;

[[nodiscard]] inline bool IsAllowedResolution(int dots) {
  return dots >= kLowestResolution && dots <= kHighestResolution;
}

// "200"; nothing for any other text and for resolutions beyond the limits.
[[nodiscard]] std::optional<int> ResolutionOf(std::string_view text);

// The largest size of the same proportions whose sides are no longer than `longest` pixels; the
// size itself when it is not longer.
[[nodiscard]] PictureSize Within(const PictureSize& size, int longest);

}  // namespace fieldhost
