// The north arrow of a turned view, drawn by raw calls.
#pragma once

#include <windows.h>

namespace tavix::test {

// Draws what a view turned by `degrees` shows in the bottom left corner of a drawing area of this
// height; nothing for turns of two degrees and less.
void DrawRawNorthArrow(HDC dc, int degrees, int height);

}  // namespace tavix::test
