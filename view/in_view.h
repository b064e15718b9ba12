// Whether something on the ground can be seen.
#pragma once

#include "view/view_state.h"

namespace tavix {

// The point's pixel lies in the drawing area, borders included.
[[nodiscard]] bool IsPointInView(const CViewState& view, GroundPoint point);

// The four points of the circle along the turned axes are all in view. A radius below
// 0.00001 m asks for the centre alone. Compatibility: the offsets are turned by the view's angle
// before the view turns the points again.
[[nodiscard]] bool IsCircleInView(const CViewState& view, GroundPoint centre, double radius);

}  // namespace tavix
