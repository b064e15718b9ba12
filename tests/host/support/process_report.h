// Where a process stands that does not answer.
#pragma once

#include <windows.h>

#include <string>

namespace fieldhost {

// The windows of a process with class and title, and for each of its threads the modules whose code
// it is in or comes from, the innermost first. Asks the system alone, never the process. Threads
// are stopped for a moment.
[[nodiscard]] std::string ReportOn(DWORD process);

}  // namespace fieldhost
