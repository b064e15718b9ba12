// The program entry of framework-style hosts: runs the application object of the process. main, and
// wmain for hosts that are linked with -municode.

#include <afxwin.h>

namespace {

// The command line after the program's name, which may be in quotes.
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

int RunApplication() {
  return AfxWinMain(::GetModuleHandleW(nullptr), nullptr, ArgumentsOnly(::GetCommandLineW()),
                    ShowCommand());
}

}  // namespace

int main() { return RunApplication(); }

extern "C" int wmain();
int wmain() { return RunApplication(); }
