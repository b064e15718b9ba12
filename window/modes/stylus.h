// The gestures of the stylus: taps and drags.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <optional>

#include "view/coordinates.h"

namespace tavix {

// One gesture, from the pixel where the stylus touched the window to the one where it left.
struct StylusGesture {
  ScreenPoint down;
  ScreenPoint up;

  // A tap moves less than ten pixels in both directions; anything else is a drag.
  [[nodiscard]] bool IsTap() const {
    constexpr std::int64_t kTapBox = 10;
    return std::abs(std::int64_t{up.x} - down.x) < kTapBox &&
           std::abs(std::int64_t{up.y} - down.y) < kTapBox;
  }
};

// Follows the stylus from press to release. A release without a press is ignored.
class Stylus {
 public:
  void Down(ScreenPoint at) {
    down_ = at;
    is_down_ = true;
  }

  // The gesture that ends at `at`, if one began.
  std::optional<StylusGesture> Up(ScreenPoint at) {
    if (!is_down_) return std::nullopt;
    is_down_ = false;
    last_up_ = at;
    return StylusGesture{down_, at};
  }

  // Forgets a gesture whose release will not be seen.
  void Cancel() { is_down_ = false; }

  [[nodiscard]] bool IsDown() const { return is_down_; }
  [[nodiscard]] ScreenPoint LastUp() const { return last_up_; }

 private:
  ScreenPoint down_;
  ScreenPoint last_up_;
  bool is_down_ = false;
};

}  // namespace tavix
