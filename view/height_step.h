// The step of the 3-D view's height base.
#pragma once

namespace tavix {

// A round length near what 30 pixels show, in metres. Differs from the scale bar's steps on
// purpose.
[[nodiscard]] double HeightStep(double length_of_30_pixels);

}  // namespace tavix
