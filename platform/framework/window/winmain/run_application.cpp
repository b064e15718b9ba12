#include "platform/framework/window/winmain/run_application.h"

#include <afxwin.h>

namespace {

// The command line behind the program's name, which may stand in quotes.
LPWSTR ArgumentsOnly(LPWSTR commandLine) {
  bool quoted = false;
  for (; *commandLine && (quoted || *commandLine > L' '); ++commandLine) {
    if (*commandLine == L'"') quoted = !quoted;
  }
  while (*commandLine && *commandLine <= L' ') ++commandLine;
  return commandLine;
}

int ShowCommand() {
  STARTUPINFOW startup = {};
  ::GetStartupInfoW(&startup);
  return startup.dwFlags & STARTF_USESHOWWINDOW ? startup.wShowWindow : SW_SHOWDEFAULT;
}

}  // namespace

int afx::RunApplication() {
  return AfxWinMain(::GetModuleHandleW(nullptr), nullptr, ArgumentsOnly(::GetCommandLineW()),
                    ShowCommand());
}
