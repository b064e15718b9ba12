// The program entry of a framework-style host, which runs the process's CWinApp: main, and wmain
// for a host that is linked with -municode.

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

int RunApplication() {
  return AfxWinMain(::GetModuleHandleW(nullptr), nullptr, ArgumentsOnly(::GetCommandLineW()),
                    ShowCommand());
}

}  // namespace

int main() { return RunApplication(); }

extern "C" int wmain();
int wmain() { return RunApplication(); }
