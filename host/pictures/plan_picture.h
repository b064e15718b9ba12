// The one-bit picture that the library draws of the plan.
#pragma once

#include <optional>

#include "host/pictures/one_bit_picture.h"
#include "host/pictures/picture_size.h"

namespace fieldhost {

// Has the current instance draw the picture, and reads it. It shows the ground width of the plot
// window, which must exist, or one sheet while a paper frame is on. Nothing when memory did not
// suffice.
[[nodiscard]] std::optional<OneBitPicture> DrawPlanPicture(const PictureSize& size);

}  // namespace fieldhost
