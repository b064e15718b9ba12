// The faces of the on-screen buttons as the library holds them.
#pragma once

#include <windows.h>

namespace tavix::test {

// Draws the library's bitmap of this number with its top left corner at `at`.
void DrawFace(HDC dc, unsigned bitmap, POINT at);

}  // namespace tavix::test
