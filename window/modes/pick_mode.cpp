#include "window/modes/pick_mode.h"

#include "store/point_list.h"
#include "window/plot_display.h"

namespace tavix {

StylusMode::Progress TapMode::Release(const StylusGesture& gesture) {
  const Scene& scene = target_.display.Shown();
  if (!gesture.IsTap() || !scene.IsPickable()) return Progress::kGoesOn;
  constexpr int kTolerance = 10;  // pixels
  const GroundPoint tapped = scene.GroundUnder(gesture.up);
  std::int32_t key = 0;
  const bool found =
      target_.points.FindNearest(target_.view.PixelsToLength(kTolerance), tapped, &key) == 0;
  Tapped(tapped, found ? std::optional(key) : std::nullopt);
  return Progress::kGoesOn;
}

void TapMode::Report(UINT command, LPARAM value) const {
  ::PostMessageW(::GetParent(target_.window.m_hWnd), WM_COMMAND, command, value);
}

void PickMode::Tapped(GroundPoint /*tapped*/, std::optional<std::int32_t> key) {
  if (key) Report(notify_id_, *key);
}

}  // namespace tavix
