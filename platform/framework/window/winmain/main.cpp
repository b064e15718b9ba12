// The entry point of a framework-style host: what starts its CWinApp.

#include <afxwin.h>

#include "platform/framework/window/winmain/run_application.h"

int main() { return afx::RunApplication(); }
