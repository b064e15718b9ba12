// A bitmap whose pixels can be reached.
#pragma once

#include <afxwin.h>

#include "draw/dib/pixel_block.h"

namespace tavix {

// Makes `bitmap` a 32-bit bitmap section for device contexts like `dc`; it owns the pixels
// returned. Null pixels, and `bitmap` as it was, where a bitmap compatible with `dc` would have
// another depth or there is no memory.
[[nodiscard]] PixelBlock CreateDib(CDC& dc, int width, int height, CBitmap& bitmap);

}  // namespace tavix
