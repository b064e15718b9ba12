#pragma once

namespace afx {

// Runs the application object of this process. Returns the exit code.
int RunApplication();

}  // namespace afx
