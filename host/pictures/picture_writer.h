// A window's picture as a file.
#pragma once

#include <afxwin.h>

#include <filesystem>

namespace fieldhost {

// Writes what the window shows in its client area, children included, as a PNG file. The window
// must be visible and on the screen. `resolution` in dots an inch. False when there is no picture
// or it cannot be written.
[[nodiscard]] bool WritePicture(CWnd& window, int resolution, const std::filesystem::path& file);

// The screen's dots an inch: a picture for which nobody chose a resolution is as large on paper as
// it is on the screen.
[[nodiscard]] int ScreenResolution();

}  // namespace fieldhost
