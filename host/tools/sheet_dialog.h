// Asks the user for a sheet: paper, which way up, scale.
#pragma once

#include <afxwin.h>

#include <optional>

#include "host/tools/sheet.h"

namespace fieldhost {

// Nothing when the user cancelled.
[[nodiscard]] std::optional<Sheet> AskForSheet(CWnd& parent, const Sheet& sheet);

}  // namespace fieldhost
