#pragma once

#include "framework/platform.h"

namespace afx {

// Offers the message to its window and then to each parent or owner up to `last` (included; null:
// to the top) that has an object. TRUE when one of them handled it.
BOOL WalkPreTranslateTree(HWND last, MSG* message);

}  // namespace afx
