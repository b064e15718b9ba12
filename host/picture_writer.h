// A window's picture as a file.
#pragma once

#include <afxwin.h>

#include <filesystem>

namespace fieldhost {

// Writes what the window shows in its client area, children included, as a PNG file. The window
// must be visible and on the screen. False when there is no picture or it cannot be written.
[[nodiscard]] bool WritePicture(CWnd& window, const std::filesystem::path& file);

}  // namespace fieldhost
