#include "window/buttons/button_column_layout.h"

#include <algorithm>

namespace tavix {
namespace {

constexpr int kHeight = 20;
constexpr int kScrollHeight = 10;
// The last main button then has the room of the two scroll buttons.
constexpr int kPlacesThatFitAll = ButtonColumnLayout::kLastMain - ButtonColumnLayout::kFirstMain;

}  // namespace

ButtonColumnLayout::ButtonColumnLayout(int client_height)
    : places_((client_height + 2) / kHeight - 1), all_fit_(places_ >= kPlacesThatFitAll) {}

int ButtonColumnLayout::Top(int button) const {
  if (all_fit_) {
    return button == kScrollUp ? Top(kFirstMain) : (button - kFirstMain) * kHeight;
  }
  if (button == kScrollUp) return 0;
  if (button == kScrollDown) return kScrollHeight + std::max(places_, 0) * kHeight;
  const int last_place = std::max(places_ - 1, 0);
  return kScrollHeight + std::clamp(button - first_visible_, 0, last_place) * kHeight;
}

bool ButtonColumnLayout::IsVisible(int button) const {
  const bool is_scroll = button == kScrollUp || button == kScrollDown;
  if (all_fit_) return !is_scroll;
  return is_scroll || (first_visible_ <= button && button < first_visible_ + places_);
}

bool ButtonColumnLayout::ScrollUp() {
  if (first_visible_ == kFirstMain) return false;
  --first_visible_;
  return true;
}

bool ButtonColumnLayout::ScrollDown() {
  // Also stops a column too low for any main button, which has no last place to reach.
  if (first_visible_ >= kScrollDown - places_ || first_visible_ == kLastMain) return false;
  ++first_visible_;
  return true;
}

}  // namespace tavix
