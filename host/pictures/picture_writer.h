// Pictures as files.
#pragma once

#include <afxwin.h>

#include <filesystem>

#include "host/pictures/one_bit_picture.h"

namespace fieldhost {

// Writes what the window shows in its client area, children included, as a PNG file. The window
// must be visible and on the screen. `resolution` in dots an inch. False when there is no picture
// or it cannot be written.
[[nodiscard]] bool WritePicture(CWnd& window, int resolution, const std::filesystem::path& file);

// The screen's dots an inch: without a chosen resolution a picture is as large on paper as on the
// screen.
[[nodiscard]] int ScreenResolution();

// Writes the file, in place of one that is there. `resolution` in dots an inch; a portable bitmap
// stores none. False when it cannot be written.
[[nodiscard]] bool WriteOneBitPicture(const OneBitPicture& picture, OneBitFormat format,
                                      int resolution, const std::filesystem::path& file);

}  // namespace fieldhost
