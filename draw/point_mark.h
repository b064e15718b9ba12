// The eleven shapes of point marks.
#pragma once

#include "view/coordinates.h"

class CDC;

namespace tavix {

// Marks from this kind on are filled with the legend's colour; lower ones are hollow.
constexpr int kFirstFilledMark = 8;

// Draws mark `kind` (1..11; any other draws nothing) of `size` pixels centred on `at`, with the pen
// and the brush that `dc` has selected.
void DrawMark(CDC& dc, int kind, int size, ScreenPoint at);

}  // namespace tavix
