// The one-bit picture that the library draws of the plan.
#pragma once

#include <optional>

#include "host/pictures/one_bit_picture.h"
#include "host/pictures/picture_size.h"

namespace fieldhost {

// Has the current instance, which has a plot window, draw the picture, and reads it. It shows the
// window's ground width, or one sheet while a paper frame is on. Nothing when the library had no
// room for it.
[[nodiscard]] std::optional<OneBitPicture> DrawPlanPicture(const PictureSize& size);

}  // namespace fieldhost
