// Asks the user for survey files.
#pragma once

#include <afxwin.h>

#include <filesystem>
#include <vector>

namespace fieldhost {

// The chosen files; empty when the user cancelled.
[[nodiscard]] std::vector<std::filesystem::path> AskForSurveyFiles(CWnd& parent);

}  // namespace fieldhost
