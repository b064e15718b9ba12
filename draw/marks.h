// The shapes of point marks.
#pragma once

#include "view/coordinates.h"

class CDC;

namespace tavix {

// One shape. The table of them is the only place that names it: what the settings list and what is
// drawn follow from it.
struct MarkShape {
  const wchar_t* name;  // in the settings
  bool is_filled;       // with the legend's colour; the others are hollow
  // With the pen and the brush that `dc` has selected; `size` in pixels.
  void (*draw)(CDC& dc, int size, ScreenPoint at);
};

// The shape of a kind: 1 and up, in the order of the table. Null for any other, which draws
// nothing.
[[nodiscard]] const MarkShape* FindMark(int kind);

// Draws mark `kind` of `size` pixels centred on `at`.
void DrawMark(CDC& dc, int kind, int size, ScreenPoint at);

}  // namespace tavix
