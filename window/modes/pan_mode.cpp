#include "window/modes/pan_mode.h"

#include "window/buttons/button_column.h"
#include "window/navigation.h"
#include "window/plot_display.h"

namespace tavix {

void PanMode::Enter() { buttons_.SetPressed(kPanButton, true); }

void PanMode::Leave() { buttons_.SetPressed(kPanButton, false); }

// The centre that moves is that of the drawing area, so that the map keeps to the stylus with the
// button column shown too.
StylusMode::Progress PanMode::Release(const StylusGesture& gesture) {
  const GroundPoint to = display_.Shown().GroundUnder(gesture.up);
  if (gesture.IsTap()) {
    navigation_.PanTo(to);
    return Progress::kGoesOn;
  }
  const GroundPoint from = display_.Shown().GroundUnder(gesture.down);
  const GroundPoint centre = view_.Centre();
  navigation_.PanTo({centre.north + from.north - to.north, centre.east + from.east - to.east});
  return Progress::kGoesOn;
}

}  // namespace tavix
