#include "window/modes/zoom_window_mode.h"

#include <cmath>

#include "window/buttons/button_column.h"
#include "window/navigation.h"
#include "window/plot_display.h"

namespace tavix {

void ZoomWindowMode::Enter() {
  buttons_.SetPressed(kBandZoomButton, true);
  buttons_.DisableAllBut(kBandZoomButton);
}

void ZoomWindowMode::Leave() {
  first_corner_.reset();
  buttons_.SetPressed(kBandZoomButton, false);
  buttons_.EnableAll();
}

void ZoomWindowMode::Press(ScreenPoint at) { display_.Band().Begin(at); }

void ZoomWindowMode::Move(ScreenPoint at) {
  RubberBand& band = display_.Band();
  band.MoveTo(display_.Shown().BandCorners(band.FirstCorner(), at));
}

void ZoomWindowMode::Cancel() { display_.Band().Erase(); }

StylusMode::Progress ZoomWindowMode::Release(const StylusGesture& gesture) {
  Cancel();
  const GroundPoint up = display_.Shown().GroundUnder(gesture.up);
  if (!first_corner_ && gesture.IsTap()) {
    first_corner_ = up;
    return Progress::kGoesOn;
  }
  const GroundPoint a = first_corner_.value_or(display_.Shown().GroundUnder(gesture.down));
  navigation_.ZoomTo({std::fabs(up.east - a.east), std::fabs(up.north - a.north)},
                     {(a.north + up.north) * 0.5, (a.east + up.east) * 0.5});
  return Progress::kDone;
}

}  // namespace tavix
